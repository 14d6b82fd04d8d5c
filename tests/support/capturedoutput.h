// What goes to standard output, taken in.
#pragma once

#include <QByteArray>
#include <QString>

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

/// What an action writes to standard output.
template<typename Action>
QByteArray outputOf(const Action &action)
{
    const CapturedOutput output;
    action();
    return output.bytes();
}

/// What is said of a settings file that is not there.
inline QByteArray notFound(const QString &path)
{
    return "Error in the method FileReader::open( " + path.toUtf8() + " ): File Not Found\n";
}
