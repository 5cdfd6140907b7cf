#pragma once

// Fixture for the layering check: the top folder, whose include of the bottom one is allowed.
#include "core/low/Low.h"

struct Top {};
