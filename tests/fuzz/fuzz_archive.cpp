// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/archive/archive.h"
#include "fuzztarget.h"

#include <QBuffer>

#include <array>
#include <clocale>
#include <memory>

extern "C" const ArchiveModule *quilleryArchive();

namespace {

/// A few bytes may say that they are millions.
constexpr qint64 mostBytes = 1 << 20;

} // namespace

/// The first byte says which form the others are read as.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool hasLetters = std::setlocale(LC_CTYPE, "C.UTF-8") != nullptr;
    require(hasLetters, "the system has letters");
    if (size == 0)
        return 0;
    const ArchiveForm form = data[0] == 'z' ? ArchiveForm::Zip : ArchiveForm::Tar;
    QBuffer buffer;
    buffer.setData(asBytes(data + 1, size - 1).toByteArray());
    buffer.open(QIODevice::ReadOnly);
    const std::unique_ptr<ArchiveReading> reading(quilleryArchive()->startReading(
        form, {.read = [&](char *bytes, qint64 count) { return buffer.read(bytes, count); },
               .seek = [&](qint64 place) { return buffer.seek(place); },
               .size = buffer.size()}));
    require(reading != nullptr, "what does not open is told by its first step");
    qint64 left = mostBytes;
    std::array<char, 4096> bytes{};
    ArchiveEntry entry;
    for (int files = 0; files < 100 && left > 0; ++files) {
        if (reading->next(entry) != ArchiveReading::Step::Entry)
            return 0;
        require(!entry.name.isEmpty(), "a file has a name");
        for (qint64 got = 1; got > 0 && left > 0; left -= got) {
            got = reading->read(bytes.data(), bytes.size());
            require(got <= qint64(bytes.size()), "no more is read than there is room for");
        }
    }
    return 0;
}
