// A main without a fuzzer: runs a fuzz target on every file of a folder, and fails when there is
// none.
#include "support/bytes.h"

#include <QDir>

#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s corpus\n", argv[0]);
        return 2;
    }
    const QDir corpus(QFile::decodeName(argv[1]));
    const QStringList names = corpus.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        // Said before the run: the last name is that of the input which ended the process.
        std::fprintf(stderr, "%s\n", qPrintable(name));
        const QByteArray bytes = bytesOf(corpus.filePath(name));
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));
    }
    std::fprintf(stderr, "%d inputs\n", static_cast<int>(names.size()));
    return names.isEmpty() ? 1 : 0;
}
