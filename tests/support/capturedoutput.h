// What goes to standard output, taken in.
#pragma once

#include <QByteArray>

#include <iostream>
#include <sstream>
#include <streambuf>

/// Takes what is written to std::cout, as long as it lives.
class CapturedOutput
{
public:
    CapturedOutput()
        : before(std::cout.rdbuf(taken.rdbuf()))
    {
    }

    ~CapturedOutput() { std::cout.rdbuf(before); }

    Q_DISABLE_COPY_MOVE(CapturedOutput)

    [[nodiscard]] QByteArray bytes() const { return QByteArray::fromStdString(taken.str()); }

private:
    std::ostringstream taken;
    std::streambuf *before;
};
