/* A program that has met Xlib's headers before these, and whose tables have fewer const than the parameters. */
#define Bool int
#define Status int
#define True 1
#define False 0
#define None 0L
#define Success 0
#include <zepcore.h>
#include <zepm.h>

Status addTables(const float* a[], float** b, float** sum, int32 count);

Status addTables(const float* a[], float** b, float** sum, int32 count)
{
    Status status = zepSetNumThreads(True);
    if (status != stsOk) return status;
    /* C adds const to what a table points to by a cast only. */
    return zepmAdd_vava_32f_L(a, 0, sizeof(float), (const float* const*)b, 0, sizeof(float), sum, 0, sizeof(float), 3,
                              count);
}
