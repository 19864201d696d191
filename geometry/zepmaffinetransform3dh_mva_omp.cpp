// The driver of zepmAffineTransform3DH_mva.
#include "frame/parallel.h"
#include "geometry/homogeneous.h"

namespace zepm
{

Status ownOMP_zepmAffineTransform3DH_mva_32f(const Mva3DH& x)
{
    return shareObjects(x, ownAffineTransform3DH_mva_32f_Packed, ownAffineTransform3DH_mva_32f_Strided);
}

} // namespace zepm
