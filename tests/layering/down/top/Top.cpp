// Fixture for the layering check: includes its own folder, the folder it links and, through
// that one, the folder below.
#include "core/top/Top.h"
#include "core/low/Low.h"
#include "core/middle/Middle.h"
