// What libraries are known to leave behind: no leak of ours.

extern "C" {
const char *__lsan_default_suppressions();
const char *__lsan_default_options();
}

/// A library that the one of CUPS loads splits a list of names when it is loaded, and keeps it.
const char *__lsan_default_suppressions() { return "leak:__argz_add_sep\n"; }

const char *__lsan_default_options() { return "print_suppressions=0"; }
