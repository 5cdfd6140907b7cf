#pragma once

// Fixture for the layering check: the bottom folder, which includes no other.
struct Low {};
