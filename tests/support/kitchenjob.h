// A kitchen order that prints one way with a shop's settings and another way without.
#pragma once

#include "support/settingstext.h"
#include "support/shop.h"

inline const QByteArray settings = settingsFile(documentGroup("doc", "quantityFieldWidth = 3;"));
inline const QByteArray job =
    R"(<job><method name="printPartialOrder"/><receipe number="2" name="X"/></job>)";

// What the job prints with the settings, and without: the name in 32 - 3 or 32 - 6 characters.
inline const QByteArray withSettings = "=o\n=\"/(  2 X" + QByteArray(25, ' ') + " )\n=o\n";
inline const QByteArray withoutSettings = "=o\n=\"/(2 X" + QByteArray(28, ' ') + " )\n=o\n";

/// What is said of an output that cannot be opened.
inline const QByteArray notOpened = "PrintManager::printAbstractOrder(...): Unable To Open File\n";

/// Fails the test unless nothing but the exit is to be said of a run: for runs whose standard
/// output is something else.
#define VERIFY_ENDED(run)                                                                          \
    do {                                                                                           \
        QVERIFY((run).exited);                                                                     \
        QCOMPARE((run).status, 0);                                                                 \
        QCOMPARE((run).standardError, QByteArray());                                               \
    } while (false)
