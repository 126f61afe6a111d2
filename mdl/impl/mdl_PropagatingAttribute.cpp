// The library's instantiations of the propagating attribute, exported by their declarations
// (CVX_EXTERN_TEMPLATE; with MinGW its users compile these inline members themselves).
#include <mdl_PropagatingAttribute.h>

template class mdl_PropAttr<cow_String>;
template class mdl_PropAttr<double>;
template class mdl_PropAttr<bool>;
template class mdl_PropAttr<cls_xpListInt>;
template class mdl_PropAttr<int>;
template class mdl_PropAttr<cls_xp1DArrayInt>;
template class mdl_PropAttr<cls_xpListString>;
template class mdl_PropAttr<cls_xp1DArrayListFloat>;
