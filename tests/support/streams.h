// Command streams put together, as the printer gets them.
#pragma once

#include <QByteArrayList>
#include <QString>

/// A line: its text begins 4 bytes behind its start.
inline QByteArray line(const QByteArray &content) { return "=\"/(" + content + " )\n"; }

/// The same as linesOf() shows it.
inline QString shownLine(const QString &content) { return "=\"/(" + content + " )\\n"; }

/// A document with one line in it.
inline QByteArray documentOf(const QByteArray &text) { return "=o\n" + line(text) + "=o\n"; }

/// A fiscal receipt: its rows begin at byte 7, on line 3.
inline QByteArray fiscal(const QByteArray &rows) { return "=K\n=C1\n" + rows + "=T1\n"; }

/// Both kinds of rows and sections, a centred line and one that is not, and an unknown command.
inline const QByteArray everyCommand = "=K\n=C1\n"
                                       "=R1/$120/*2/(COFFEE)\n"
                                       "=S\r\n=V/$50\r\n"
                                       "=T1\n"
                                       "=o/*1\n"
                                       "=\"/(             Caff\xC3\xA8 )\n"
                                       "=\"/( x )\n"
                                       "=o\n"
                                       "=o\n"
                                       "=?\n"
                                       "=o\n";

/// Streams with everything that can be wrong.
inline const QByteArrayList brokenStreams = {
    everyCommand,
    documentOf(QByteArray(33, 'x')),
    "=K\n=C1\n=R1/$100/*1/(" + QByteArray(33, 'x') + ")\n=T1\n",
    "=x\n",
    "x",
    "=\"/(abc)\n=o\n=o\n",
    "=R1x\n",
    "=S\r\n=V/$1\nx",
    "=o",
    "=\"/(abc",
    "=R1/$1",
    "=S\r\n=V/$1",
    "=K\n=C1\n",
    "=K\n=C1\n=o/*1\n",
    "=T1\n",
    "=R1/$1/*1/(x)\n",
    "=S\r\n=V/$1\r\n",
    "=K\n=C1\n=R1/$1.5/*1/(x)\n=T1\n",
    "=K\n=C1\n=R1/$1/*a/(x)\n=T1\n",
    documentOf("a)b"),
    documentOf("a\x1b[2J"),
    documentOf("a\nb"),
    documentOf("a\xff\xfe"),
    "\n\n",
    QByteArray("=\"/(a\0b )\n", 10),
    "",
    "=K\n=C1\n=R1/$" + QByteArray(40, '9') + "/*1/(x)\n=T1\n",
    "=K\n=C1\n=S\r\n=V/$" + QByteArray(40, '9') + "\r\n=T1\n",
    "=K\n=C1\n=R1/2/$1/*1/(\xff)\n=T1\n",
    documentOf(QByteArray(1001, ')')),
    QByteArray(1001, '\n'),
};
