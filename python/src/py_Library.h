#pragma once
// The library's lifetime inside the interpreter: started when cvxutils is imported, finalised
// when the interpreter exits. The rest of the module asks it whether the interpreter can
// still take references back, since the library may drop a script object from a destructor
// that runs after the interpreter has shut down.
class py_Library {
public:
  // Starts the library once per process (counted) and has the interpreter's exit finalise
  // it. Call with the GIL held, from the module's initialisation.
  static void Start();
  // False from the interpreter's exit on; any thread may ask.
  static bool InterpreterAlive() noexcept;
};
