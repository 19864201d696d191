// The library as a plug-in sees it: loaded, called and closed again and again. This program is not linked to it.
#include "array_call.h"
#include "zepcore.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace
{

TEST(Reload, CallsComeOutRightInEveryCycle)
{
    for (int cycle = 0; cycle < 200; ++cycle)
    {
        void* const library = dlopen(ZEPM_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(nullptr, library) << dlerror();
        const auto add = reinterpret_cast<ArrayCall*>(dlsym(library, "zepmAdd_vava_32f"));
        const auto setNumThreads = reinterpret_cast<decltype(zepSetNumThreads)*>(dlsym(library, "zepSetNumThreads"));
        const auto setMinParallelWork =
            reinterpret_cast<decltype(zepSetMinParallelWork)*>(dlsym(library, "zepSetMinParallelWork"));
        ASSERT_TRUE(add && setNumThreads && setMinParallelWork);
        ASSERT_EQ(stsOk, setNumThreads(2));
        ASSERT_EQ(stsOk, setMinParallelWork(0));
        ASSERT_TRUE(addsRight(add)) << "cycle " << cycle;
        ASSERT_EQ(2, threadsOfThisProcess()) << "cycle " << cycle;
        ASSERT_EQ(0, dlclose(library));
    }
    // The OpenMP threads that it started may still be in its code.
    EXPECT_NE(nullptr, dlopen(ZEPM_LIBRARY, RTLD_NOW | RTLD_NOLOAD)) << "unloaded by dlclose";
}

} // namespace
