/* The identifiers of the public headers, defined once for the C host. */
#include <windows.h>

#include <initguid.h>

#include "korps/korps.h"
