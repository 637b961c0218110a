// The identifiers of korps/korps_interfaces.h and korps/korps.h (interface
// IDs, CLSID_KorMoniker, SID_KorBinder, the event types), defined once.
// Compile this file into a program that uses them by name; programs that use
// only __uuidof need nothing.
#include <windows.h>
#include <objidl.h>

#include <initguid.h>

#include "korps/korps_interfaces.h"
#include "korps.h"
