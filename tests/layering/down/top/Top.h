#pragma once

// Fixture for the layering check: a folder's header.
struct Top {};
