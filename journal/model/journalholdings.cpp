// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalholdings.h"

#include "journal/model/journalfiles.h"
#include "shell/pictures/keptpictures.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

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
    for (const int year : JournalFiles::years(folder)) {
        const QByteArray bytes = JournalFiles::read(folder, year).value_or(QByteArray());
        if (JournalForm::formOf(bytes) == JournalForm::Form::Sealed || !bytes.contains("\npicture "))
            continue;
        for (const JournalBlock &block : JournalForm::blocks(bytes, year)) {
            if (!block.bytes.contains("\npicture "))
                continue;
            for (const JournalPicture &picture : JournalForm::head(block).pictures) {
                const QString path = KeptPictures::locate(folder, picture.path);
                if (!path.isEmpty() && !paths.contains(path))
                    paths.append(path);
            }
        }
    }
    return paths;
}
