// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/archive/archive.h"

#include <QByteArray>
#include <QStringDecoder>
#include <QTimeZone>
#include <QtGlobal>

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <utility>

namespace {

constexpr int pieceLength = 64 << 10;
constexpr int filePermissions = 0644;
/// Of 9: records pack nearly as small as by the usual 6, in half the time.
constexpr char effort[] = "4";

struct EntryRelease {
    void operator()(archive_entry *entry) const { archive_entry_free(entry); }
};
using OwnedEntry = std::unique_ptr<archive_entry, EntryRelease>;

/// What `work` comes to; `otherwise` where it throws.
template <typename Work, typename Result>
Result guarded(Work work, Result otherwise)
{
    try {
        return work();
    } catch (...) {
        return otherwise;
    }
}

// Writing.

struct WritingRelease {
    void operator()(archive *writer) const { archive_write_free(writer); }
};

class Writing final : public ArchiveWriting
{
public:
    explicit Writing(ArchiveSink sink)
        : m_sink(std::move(sink))
        , m_writer(archive_write_new())
        , m_entry(archive_entry_new())
    {}

    /// What is left of it goes nowhere. A ZIP is closed, since what packs it is let go of only there; a tar
    /// would be filled up with zeros to the size of its entry.
    ~Writing() override
    {
        m_isRefused = true;
        if (m_writer && !m_isZip)
            archive_write_fail(m_writer.get());
    }
    Q_DISABLE_COPY_MOVE(Writing)

    bool open(ArchiveForm form)
    {
        if (!m_writer || !m_entry)
            return false;
        archive *const writer = m_writer.get();
        const bool isZip = form == ArchiveForm::Zip;
        m_isZip = isZip;
        const int formed =
            isZip ? archive_write_set_format_zip(writer) : archive_write_set_format_pax_restricted(writer);
        return formed == ARCHIVE_OK && archive_write_set_options(writer, "hdrcharset=UTF-8") == ARCHIVE_OK &&
               (!isZip || (archive_write_zip_set_compression_deflate(writer) == ARCHIVE_OK &&
                           archive_write_set_format_option(writer, "zip", "compression-level", effort) ==
                               ARCHIVE_OK)) &&
               archive_write_set_bytes_per_block(writer, pieceLength) == ARCHIVE_OK &&
               archive_write_set_bytes_in_last_block(writer, 1) == ARCHIVE_OK &&
               archive_write_open(writer, this, nullptr, &Writing::take, nullptr) == ARCHIVE_OK;
    }

    bool begin(const ArchiveEntry &entry) override
    {
        archive_entry_clear(m_entry.get());
        archive_entry_update_pathname_utf8(m_entry.get(), entry.name.toUtf8().constData());
        if (!archive_entry_pathname(m_entry.get()))
            return false; // the system has no such letters
        archive_entry_set_filetype(m_entry.get(), AE_IFREG);
        archive_entry_set_perm(m_entry.get(), filePermissions);
        if (entry.size >= 0)
            archive_entry_set_size(m_entry.get(), entry.size);
        if (entry.changed.isValid())
            archive_entry_set_mtime(m_entry.get(), time_t(entry.changed.toSecsSinceEpoch()), 0);
        return archive_write_header(m_writer.get(), m_entry.get()) == ARCHIVE_OK && !m_isRefused;
    }

    bool write(QByteArrayView bytes) override
    {
        return !m_isRefused &&
               archive_write_data(m_writer.get(), bytes.data(), std::size_t(bytes.size())) == bytes.size() &&
               !m_isRefused;
    }

    bool finish() override { return archive_write_close(m_writer.get()) == ARCHIVE_OK && !m_isRefused; }

private:
    /// The library is told of no refusal: it would not let go then of what it has begun.
    static la_ssize_t take(archive *, void *self, const void *bytes, std::size_t size)
    {
        auto *writing = static_cast<Writing *>(self);
        const QByteArrayView view(static_cast<const char *>(bytes), qsizetype(size));
        if (!writing->m_isRefused)
            writing->m_isRefused = !guarded([&] { return writing->m_sink(view); }, false);
        return la_ssize_t(size);
    }

    ArchiveSink m_sink;
    bool m_isZip = false;
    bool m_isRefused = false; ///< nothing more is handed to the sink
    std::unique_ptr<archive, WritingRelease> m_writer;
    OwnedEntry m_entry;
};

// Reading.

struct ReadingRelease {
    void operator()(archive *reader) const { archive_read_free(reader); }
};

class Reading final : public ArchiveReading
{
public:
    explicit Reading(ArchiveSource source)
        : m_source(std::move(source))
        , m_piece(pieceLength, Qt::Uninitialized)
        , m_reader(archive_read_new())
    {}

    /// What does not open is told by the first `next`.
    bool open(ArchiveForm form)
    {
        if (!m_reader)
            return false;
        archive *const reader = m_reader.get();
        m_isZip = form == ArchiveForm::Zip;
        const int formed = m_isZip ? archive_read_support_format_zip_seekable(reader)
                                   : archive_read_support_format_tar(reader);
        if (formed != ARCHIVE_OK || archive_read_support_filter_none(reader) != ARCHIVE_OK)
            return false;
        archive_read_set_callback_data(reader, this);
        archive_read_set_read_callback(reader, &Reading::give);
        if (m_source.seek)
            archive_read_set_seek_callback(reader, &Reading::seek);
        m_isOpen = archive_read_open1(reader) == ARCHIVE_OK;
        return true;
    }

    Step next(ArchiveEntry &entry) override
    {
        archive_entry *found = nullptr;
        const int result = m_isOpen ? archive_read_next_header(m_reader.get(), &found) : ARCHIVE_FATAL;
        if (result == ARCHIVE_EOF)
            return Step::End;
        if (result != ARCHIVE_OK) // one without a form is none of those that are known
            return archive_format(m_reader.get()) == 0 ? Step::Refused : Step::Damaged;
        if (!isPlainFile(found))
            return Step::Refused;
        const char *const name = archive_entry_pathname_utf8(found);
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = name ? QString(decoder(QByteArrayView(name))) : QString();
        if (text.isEmpty() || decoder.hasError())
            return Step::Refused;
        entry = {.name = text,
                 .size = archive_entry_size(found),
                 .changed = QDateTime::fromSecsSinceEpoch(archive_entry_mtime(found), QTimeZone::utc())};
        return Step::Entry;
    }

    qint64 read(char *bytes, qint64 size) override
    {
        const la_ssize_t got = archive_read_data(m_reader.get(), bytes, std::size_t(size));
        return got < 0 ? -1 : qint64(got);
    }

private:
    bool isPlainFile(archive_entry *entry) const
    {
        return archive_entry_filetype(entry) == AE_IFREG && !archive_entry_hardlink(entry) &&
               !archive_entry_symlink(entry) && archive_entry_sparse_count(entry) == 0 &&
               archive_entry_is_encrypted(entry) == 0 && archive_entry_size_is_set(entry) != 0 &&
               isOurCompression();
    }

    /// The library would read others, and tells only by their names.
    bool isOurCompression() const
    {
        if (!m_isZip)
            return true;
        const QByteArrayView form(archive_format_name(m_reader.get()));
        return form.endsWith("(deflation)") || form.endsWith("(uncompressed)");
    }

    static la_ssize_t give(archive *reader, void *data, const void **bytes)
    {
        auto *self = static_cast<Reading *>(data);
        const qint64 got = guarded(
            [self] { return self->m_source.read(self->m_piece.data(), self->m_piece.size()); }, qint64(-1));
        if (got < 0) {
            archive_set_error(reader, EIO, "not read");
            return -1;
        }
        self->m_place += got;
        *bytes = self->m_piece.constData();
        return la_ssize_t(got);
    }

    static la_int64_t seek(archive *, void *data, la_int64_t offset, int from)
    {
        auto *self = static_cast<Reading *>(data);
        const qint64 begin = from == SEEK_SET ? 0 : from == SEEK_CUR ? self->m_place : self->m_source.size;
        const qint64 place = std::clamp<qint64>(begin + offset, 0, self->m_source.size);
        if (!guarded([&] { return self->m_source.seek(place); }, false))
            return ARCHIVE_FATAL;
        self->m_place = place;
        return place;
    }

    ArchiveSource m_source;
    QByteArray m_piece;
    qint64 m_place = 0;
    std::unique_ptr<archive, ReadingRelease> m_reader;
    bool m_isZip = false;
    bool m_isOpen = false;
};

// The border.

ArchiveWriting *startWriting(ArchiveForm form, const ArchiveSink &sink)
{
    return guarded(
        [&]() -> ArchiveWriting * {
            auto writing = std::make_unique<Writing>(sink);
            return writing->open(form) ? writing.release() : nullptr;
        },
        static_cast<ArchiveWriting *>(nullptr));
}

ArchiveReading *startReading(ArchiveForm form, const ArchiveSource &source)
{
    return guarded(
        [&]() -> ArchiveReading * {
            auto reading = std::make_unique<Reading>(source);
            return reading->open(form) ? reading.release() : nullptr;
        },
        static_cast<ArchiveReading *>(nullptr));
}

} // namespace

extern "C" Q_DECL_EXPORT const ArchiveModule *quilleryArchive()
{
    static constexpr ArchiveModule table{startWriting, startReading};
    return &table;
}
