// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/picturefiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace {

class Visitor
{
public:
    Visitor(const std::atomic_bool &isStopped, const std::function<bool(const QString &)> &visit)
        : m_isStopped(isStopped)
        , m_visit(visit)
    {}

    /// A stack of its own: folders may lie deeper than calls.
    bool walk(const QStringList &paths)
    {
        for (const QString &path : paths) {
            QStringList waiting{path};
            while (!waiting.isEmpty()) {
                if (!step(waiting))
                    return false;
            }
        }
        return true;
    }

private:
    bool step(QStringList &waiting)
    {
        const QFileInfo file(waiting.takeLast());
        if (m_isStopped)
            return false;
        if (!file.isDir())
            return !PictureFiles::isPicture(file.fileName()) || m_visit(file.absoluteFilePath());
        const QString real = file.canonicalFilePath();
        if (real.isEmpty() || m_seen.contains(real))
            return true;
        m_seen.insert(real);
        QStringList folders;
        const QDir folder(file.absoluteFilePath());
        // With what is no file, and with names that are none: whoever takes pictures in has to tell of them.
        if (!visitUnnamed(folder))
            return false;
        const QStringList names =
            folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
        for (const QString &name : names) {
            const QString path = folder.filePath(name);
            if (m_isStopped)
                return false;
            // A folder named like a picture is a folder still.
            if (PictureFiles::isPicture(name) && !QFileInfo(path).isDir()) {
                if (!m_visit(path))
                    return false;
            } else if (QFileInfo(path).isDir()) {
                folders.prepend(path);
            }
        }
        waiting += folders;
        return true;
    }

    /// Files with names of another code page, which nothing here can open: as far as they can be read.
    bool visitUnnamed(const QDir &folder) const
    {
#ifndef Q_OS_WIN
        namespace fs = std::filesystem;
        std::error_code failure;
        fs::directory_iterator entry(QFile::encodeName(folder.path()).toStdString(), failure);
        for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
            const std::string bytes = entry->path().filename().string();
            if (QByteArrayView(bytes).isValidUtf8())
                continue;
            const QString name = QString::fromUtf8(bytes);
            if (PictureFiles::isPicture(name) && !m_visit(folder.filePath(name)))
                return false;
        }
#else
        Q_UNUSED(folder)
#endif
        return true;
    }

    const std::atomic_bool &m_isStopped;
    const std::function<bool(const QString &)> &m_visit;
    QSet<QString> m_seen;
};

} // namespace

bool PictureFiles::isPicture(const QString &fileName)
{
    static constexpr std::array endings{"jpg"_L1,  "jpeg"_L1, "jpe"_L1,  "png"_L1,  "gif"_L1,  "bmp"_L1,
                                        "webp"_L1, "tif"_L1,  "tiff"_L1, "heic"_L1, "heif"_L1, "avif"_L1};
    const qsizetype dot = fileName.lastIndexOf(u'.');
    const QStringView ending = QStringView(fileName).sliced(dot + 1);
    return dot >= 0 && std::ranges::any_of(endings, [ending](QLatin1StringView known) {
               return ending.compare(known, Qt::CaseInsensitive) == 0;
           });
}

bool PictureFiles::forEach(const QStringList &paths, const std::atomic_bool &isStopped,
                           const std::function<bool(const QString &path)> &visit)
{
    return Visitor(isStopped, visit).walk(paths);
}

qint64 PictureFiles::timeOf(const QString &path)
{
    return QFileInfo(path).lastModified().toSecsSinceEpoch();
}
