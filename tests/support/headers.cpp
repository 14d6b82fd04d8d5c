// Compiles the headers that most tests include, for all of them.
