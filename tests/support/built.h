// Where the build that the tests belong to has put what they run, and how it was built.
#pragma once

#include <QString>

namespace built {

extern const char *const folder;
extern const bool sanitized;

extern const char *const backend;
extern const char *const check;
extern const char *const deliver;
extern const char *const failingCall;
extern const char *const filter;
extern const char *const journal;
extern const char *const preview;
extern const char *const print;
extern const char *const printerSim;
extern const char *const recode;
extern const char *const settings;

/// A path below the folder of the build, which begins with a slash.
inline QString path(const QString &below) { return folder + below; }

} // namespace built
