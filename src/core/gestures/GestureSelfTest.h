#pragma once

namespace tactora {

// The recogniser's built-in scenarios. Prints its pass line on success; a failed expectation
// stops the program with an assertion naming "Gestures". Called on the main thread by the
// self-test mode.
void runTests();

// The dispatch guard's built-in scenarios, with the same reporting as runTests().
void dispatchTests();

}  // namespace tactora
