// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/takein.h"

#include "album/model/contenthash.h"
#include "album/model/lines.h"
#include "album/model/photooffile.h"
#include "album/model/photoshelf.h"
#include "album/model/phototexts.h"
#include "album/model/picturefiles.h"
#include "shell/core/undosteps.h"
#include "shell/pictures/keptpictures.h"
#include "storage/saving.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// So many pictures come to the shelf at once at most, and as many as were read in this time.
constexpr std::size_t atOnce = 200;
constexpr int atOnceMs = 300;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Copies a picture into a folder of the household, as it is and with its time; where it lies now. Empty when
/// the disk refuses.
QString copied(const QString &path, const QString &folder)
{
    const QFileInfo source(path);
    QString name = source.fileName();
    for (int number = 2; QFileInfo::exists(folder + u'/' + name); ++number)
        name = source.completeBaseName() + u' ' + QString::number(number) + u'.' + source.suffix();
    const QByteArray bytes = contentOf(path);
    if (bytes.size() != source.size() || !QDir().mkpath(folder) ||
        !Saving::replaceFile(DataFolder(folder), name, bytes))
        return {};
    QString target = folder + u'/' + name;
    QFile file(target);
    if (file.open(QIODevice::ReadWrite))
        file.setFileTime(source.lastModified(), QFileDevice::FileModificationTime);
    return target;
}

/// "2026/2026-11" of a picture's date, or of the time of its file.
QString monthOf(const Photo &photo)
{
    const QDate taken = photo.date.first();
    const QDate day = taken.isValid() ? taken : QDateTime::fromSecsSinceEpoch(photo.fileTime).date();
    return day.toString(u"yyyy/yyyy-MM"_s);
}

} // namespace

/// The part that runs on the other thread.
class TakeIn::Walk
{
public:
    Walk(Wish wish, Known known, const DataFolder &folder, std::function<void(Batch)> report)
        : m_wish(std::move(wish))
        , m_known(std::move(known))
        , m_folder(folder)
        , m_report(std::move(report))
    {
        for (std::size_t i = 0; i < m_known.photos.size(); ++i)
            m_sizes[m_known.photos[i].size].push_back(i);
    }

    void run(const Walker::Stop &isStopped)
    {
        QStringList paths;
        PictureFiles::forEach(m_wish.paths, isStopped, [&paths](const QString &path) {
            paths.append(path);
            return true;
        });
        m_batch.total = int(paths.size());
        m_clock.start();
        for (const QString &path : std::as_const(paths)) {
            if (isStopped)
                break;
            visit(path, isStopped);
            ++m_batch.done;
            if (m_batch.photos.size() >= atOnce || m_clock.elapsed() > atOnceMs)
                report();
        }
        report();
    }

private:
    void report()
    {
        Batch next;
        next.done = m_batch.done;
        next.total = m_batch.total;
        m_report(std::exchange(m_batch, next));
        m_clock.restart();
    }

    void visit(const QString &path, const Walker::Stop &isStopped)
    {
        const QString stored = KeptPictures::stored(m_folder, path);
        if (const auto known = m_known.paths.constFind(stored); known != m_known.paths.cend()) {
            ++m_batch.knownCount;
            if (!m_wish.since.isValid())
                m_batch.known.append(known.value());
            return;
        }
        if (m_wish.since.isValid() && !isNew(path))
            return;
        if (!QFileInfo(path).isFile()) {
            m_batch.refused.append(path);
            return;
        }
        const std::optional<int> same = sameContent(path, isStopped);
        if (isStopped)
            return;
        if (same) {
            ++m_batch.knownCount;
            m_batch.known.append(*same);
            return;
        }
        if (!PhotoTexts::fitsPath(stored)) {
            m_batch.refused.append(path);
            return;
        }
        add(path, stored);
    }

    /// Whether it came since, or a folder in which it lies was moved here with what is in it: such a folder
    /// is another one than before, while nothing in it changed.
    bool isNew(const QString &path) const
    {
        if (QFileInfo(path).metadataChangeTime() > m_wish.since)
            return true;
        QFileInfo folder(QFileInfo(path).path());
        while (!m_wish.paths.contains(folder.filePath()) && !folder.isRoot()) {
            if (folder.metadataChangeTime() > m_wish.since && folder.lastModified() <= m_wish.since)
                return true;
            folder.setFile(folder.path());
        }
        return false;
    }

    void add(const QString &path, const QString &stored)
    {
        Photo photo = PhotoOfFile::read(path, m_wish.today);
        photo.path = stored;
        const bool isInHousehold = QDir::isRelativePath(stored);
        if (m_wish.copy != Copy::No && !isInHousehold) {
            const QString place = m_folder.filePath(u"Pictures"_s);
            const QString target =
                copied(path, m_wish.copy == Copy::ByMonth ? QString(place + u'/' + monthOf(photo)) : place);
            if (target.isEmpty()) {
                m_batch.refused.append(path);
                return;
            }
            photo.path = KeptPictures::stored(m_folder, target);
            PhotoOfFile::takeFacts(photo, target);
        }
        m_known.paths.insert(photo.path, 0);
        m_batch.photos.push_back(photo);
        if (m_wish.copy == Copy::No)
            return;
        photo.path = path; // the same may lie on the card once more
        m_sizes[photo.size].push_back(m_known.photos.size());
        m_known.photos.push_back(photo);
    }

    /// The record of the picture that this file has the content of: where it would be copied, any; else one
    /// that is missing, and was found again by that.
    std::optional<int> sameContent(const QString &path, const Walker::Stop &isStopped)
    {
        const auto same = m_sizes.constFind(QFileInfo(path).size());
        if (same == m_sizes.cend())
            return {};
        std::optional<Photo::Hash> hash;
        for (const std::size_t index : same.value()) {
            Photo &photo = m_known.photos[index];
            const bool isThere = QFileInfo(photo.path).isFile();
            if (isThere == (m_wish.copy == Copy::No) || !isHashed(photo, isThere, isStopped))
                continue;
            if (!hash)
                hash = ContentHash::of(path, isStopped);
            if (!hash || *hash != photo.hash)
                continue;
            if (!isThere) {
                m_batch.foundAgain.insert(photo.record, path);
                photo.path = path;
            }
            return photo.record;
        }
        return {};
    }

    static bool isHashed(Photo &photo, bool isThere, const Walker::Stop &isStopped)
    {
        if (!photo.isHashed() && isThere)
            photo.hash = ContentHash::of(photo.path, isStopped).value_or(Photo::notHashed);
        return photo.isHashed();
    }

    const Wish m_wish;
    Known m_known;
    const DataFolder m_folder;
    const std::function<void(Batch)> m_report;
    QHash<qint64, std::vector<std::size_t>> m_sizes; ///< pictures by their size
    Batch m_batch;
    QElapsedTimer m_clock;
};

TakeIn::TakeIn(PhotoShelf &shelf, QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
    , m_walker(this)
{}

void TakeIn::start(const Wish &wish)
{
    if (isRunning())
        return;
    m_wish = wish;
    m_result = {};
    m_steps.clear();
    const auto report = [this](const Batch &batch) { m_walker.tell([this, batch] { take(batch); }); };
    auto walk = std::make_shared<Walk>(wish, known(), m_shelf.folder(), report);
    m_walker.start([walk](const Walker::Stop &isStopped) { walk->run(isStopped); },
                   [this](bool wasStopped) { finish(wasStopped); });
}

TakeIn::Known TakeIn::known() const
{
    Known known;
    known.photos = m_shelf.photos();
    for (Photo &photo : known.photos) {
        known.paths.insert(photo.path, photo.record);
        photo.path = m_shelf.filePath(photo);
    }
    return known;
}

void TakeIn::take(const Batch &batch)
{
    if (!m_result.whyNoMore.isEmpty())
        return;
    QList<int> intoAlbum = batch.known;
    intoAlbum.removeAll(0);
    for (const auto &[record, path] : batch.foundAgain.asKeyValueRange())
        findAgain(record, path);
    std::vector<Photo> photos = batch.photos;
    if (!photos.empty()) {
        if (const auto step = m_shelf.addPhotosAsPart(photos, m_wish.album)) {
            m_steps.push_back(*step);
            std::ranges::transform(photos, std::back_inserter(m_result.added), &Photo::record);
        } else {
            m_result.whyNoMore = m_shelf.refusal();
            m_walker.stop();
        }
    }
    if (m_wish.album != 0 && !intoAlbum.isEmpty()) {
        if (const auto step = m_shelf.putIntoAsPart(m_wish.album, intoAlbum); step && step->undo)
            m_steps.push_back(*step);
    }
    m_result.known += batch.knownCount - int(batch.foundAgain.size());
    m_result.foundAgain += int(batch.foundAgain.size());
    m_result.refused += batch.refused;
    emit progressed(batch.done, batch.total);
}

void TakeIn::findAgain(int record, const QString &path)
{
    const QString stored = m_shelf.storedPath(path);
    const auto step = m_shelf.changeAsPart({record}, {}, [&](Photo &photo) { photo.path = stored; });
    if (!step)
        return;
    m_steps.push_back(*step);
    m_shelf.note({record}, [&](Photo &photo) {
        photo.fileTime = PictureFiles::timeOf(path);
        photo.set(Photo::NotThere, false);
    });
}

void TakeIn::finish(bool wasStopped)
{
    m_result.wasStopped = wasStopped && m_result.whyNoMore.isEmpty();
    const UndoStep all =
        UndoSteps::joined(AlbumLines::added(m_result.added.size()), std::exchange(m_steps, {}));
    if (all.undo)
        m_shelf.tell(all);
    emit finished(m_result);
}
