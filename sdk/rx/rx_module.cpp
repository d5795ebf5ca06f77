// The class description of modules lives in this library alone, so that application and modules see the same
// one.
#include "sdk/rx/rx_module.h"

ODRX_DEFINE_CLASS(OdRxModule, OdRxObject)
