// The brace notation, in: the file, and what its statements come to in the tree.
#include "config/config.h"

#include "config/path.h"
#include "config/statements.h"
#include "config/tree.h"

#include <iostream>
#include <memory>
#include <string>
#include <utility>

namespace libconfig {

namespace {

void reportMissing(const std::string &path)
{
    std::cout << "Error in the method FileReader::open( " << path << " ): File Not Found"
              << std::endl;
}

} // namespace

bool Config::openFile(const QString &name)
{
    const std::string path = korvel::path::toBytes(name).toStdString();
    stream.close();
    stream.clear();
    // A FIFO would wait for a writer, a folder opens and fails on the first read.
    if (korvel::path::kindOf(name) == korvel::path::Kind::File)
        stream.open(path, std::ios::in | std::ios::binary);
    if (stream.is_open())
        return true;

    reportMissing(path);
    return false;
}

bool Config::openFile() { return openFile(fileName); }

void Config::closeFile() { stream.close(); }

bool Config::jump(char c)
{
    Tree unused;
    try {
        return Statements(*stream.rdbuf(), unused).jump(c);
    } catch (const std::ios_base::failure &) {
        return false; // the file cannot be read any further
    }
}

void Config::loadFile()
{
    openFile();
    if (!loadStatements(*stream.rdbuf()))
        closeFile();
}

/// Reads the statements of a file or of its bytes: true up to the '}' that closes them, false up
/// to the end.
bool Config::loadStatements(std::streambuf &bytes)
{
    auto read = std::make_unique<Tree>();
    bool closedByBrace = false;
    try {
        closedByBrace = Statements(bytes, *read).read();
    } catch (const std::ios_base::failure &) {
        // Half of the settings would make another document of the job; without any it is plain.
        reportMissing(korvel::path::toBytes(fileName).toStdString());
        read = std::make_unique<Tree>();
    }
    document.add(fileName, std::move(read));
    return closedByBrace;
}

} // namespace libconfig
