#include "sdk/rx/rx_module.h"

ODRX_DEFINE_CLASS(OdRxModule, OdRxObject)
