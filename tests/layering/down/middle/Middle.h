#pragma once

// Fixture for the layering check: includes the folder it links.
#include "core/low/Low.h"

struct Middle {
    Low low;
};
