// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"

#include <QDirIterator>
#include <QFile>

/// Feeds every file of the folder given as the argument to the fuzz target; fails when there is none.
int main(int argc, char **argv)
{
    int count = 0;
    QDirIterator files(argc > 1 ? QFile::decodeName(argv[1]) : QString(), QDir::Files);
    for (; files.hasNext(); ++count) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            return EXIT_FAILURE;
        std::printf("%s\n", qPrintable(file.fileName()));
        std::fflush(stdout);
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                               std::size_t(bytes.size()));
    }
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
