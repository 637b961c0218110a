// Moved to events/event_type_row.h. Only the enumerator still includes it
// here, until it moves to module/ and includes the row from its new place;
// then this file goes.
#pragma once

#include "events/event_type_row.h"
