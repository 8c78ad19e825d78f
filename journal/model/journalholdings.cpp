// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalholdings.h"

#include "journal/model/journalfiles.h"
#include "shell/pictures/keptpictures.h"
#include "storage/wholefileschange.h"

#include <QDir>
#include <QFileInfo>

#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

using JournalForm::Form;

bool hasPictures(QByteArrayView bytes)
{
    return bytes.contains("\npicture ");
}

/// The years that anybody may read and whose entries name pictures.
void forEachYear(const DataFolder &folder,
                 const std::function<void(int year, Form form, JournalBlocks blocks)> &visit)
{
    for (const int year : JournalFiles::years(folder)) {
        const QByteArray bytes = JournalFiles::read(folder, year).value_or(QByteArray());
        const Form form = JournalForm::formOf(bytes);
        if (form != Form::Sealed && hasPictures(bytes))
            visit(year, form, JournalForm::blocks(bytes, year));
    }
}

bool mayBeWritten(const DataFolder &folder, int year, Form form)
{
    return form == Form::Plain && QFileInfo(folder.filePath(JournalFiles::name(year))).isWritable();
}

void forEachPicture(const JournalBlocks &blocks, const std::function<void(const JournalPicture &)> &visit)
{
    for (const JournalBlock &block : blocks) {
        if (!hasPictures(block.bytes))
            continue;
        for (const JournalPicture &picture : JournalForm::head(block).pictures)
            visit(picture);
    }
}

/// Whether the block names one of `files`: then it names what takes its place.
bool relink(JournalBlock &block, const DataFolder &folder, const QHash<QString, QString> &files)
{
    if (!hasPictures(block.bytes))
        return false;
    JournalEntry entry = JournalForm::entry(block);
    bool isNamed = false;
    for (JournalPicture &picture : entry.pictures) {
        if (const QString now = files.value(picture.path); !now.isEmpty()) {
            picture.path = KeptPictures::stored(folder, now);
            isNamed = true;
        }
    }
    if (isNamed)
        block = JournalForm::block(entry, block.kind);
    return isNamed;
}

} // namespace

QStringList JournalHoldings::files(const DataFolder &folder)
{
    QStringList files;
    for (const int year : JournalFiles::years(folder))
        files.append(QFileInfo(folder.filePath(JournalFiles::name(year))).fileName());
    const QDir place(folder.path());
    files += place.entryList({u"DJour???? set aside*.Fil"_s, u"DJourKey.Fil"_s, u"DJourKey set aside*.Fil"_s},
                             QDir::Files, QDir::Name);
    files.removeIf([&folder](const QString &name) { return folder.existingFile({}, name).isEmpty(); });
    return files;
}

QStringList JournalHoldings::pictures(const DataFolder &folder)
{
    QStringList paths;
    forEachYear(folder, [&](int, Form, const JournalBlocks &blocks) {
        forEachPicture(blocks, [&](const JournalPicture &picture) {
            const QString path = KeptPictures::locate(folder, picture.path);
            if (!path.isEmpty() && !paths.contains(path))
                paths.append(path);
        });
    });
    return paths;
}

QStringList JournalHoldings::missingPictures(const DataFolder &folder)
{
    QStringList stored;
    forEachYear(folder, [&](int year, Form form, const JournalBlocks &blocks) {
        if (!mayBeWritten(folder, year, form))
            return;
        forEachPicture(blocks, [&](const JournalPicture &picture) {
            if (!stored.contains(picture.path) && KeptPictures::locate(folder, picture.path).isEmpty())
                stored.append(picture.path);
        });
    });
    return stored;
}

std::optional<UndoStep> JournalHoldings::relinkPictures(const DataFolder &folder,
                                                        const QHash<QString, QString> &files)
{
    const auto change = std::make_shared<WholeFilesChange>();
    forEachYear(folder, [&](int year, Form form, JournalBlocks blocks) {
        bool isNamed = false;
        for (JournalBlock &block : blocks)
            isNamed = relink(block, folder, files) || isNamed;
        if (isNamed && mayBeWritten(folder, year, form))
            change->replace(folder, JournalFiles::name(year), JournalForm::file(blocks));
    });
    if (change->isEmpty())
        return UndoStep{};
    if (!change->commit(folder))
        return {};
    return UndoStep{{},
                    [change, &folder] { return change->undo(folder); },
                    [change, &folder] { return change->redo(folder); }};
}
