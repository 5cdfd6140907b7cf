#pragma once

// Fixture for the layering check: the bottom folder includes the folder above it.

#include "core/top/Top.h"

struct Low {};
