// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturefolder.h"

#include "shell/pictures/storedpicture.h"
#include "storage/ansitext.h"
#include "storage/saving.h"
#include "storage/valuefile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The part behind the last separator of either kind: stored paths come from other machines.
QString fileName(const QString &path)
{
    const qsizetype start =
        std::max({path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'), path.lastIndexOf(u':')});
    return path.mid(start + 1);
}

bool isFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isAbsolute() && file.isFile();
}

/// `name` as far as every file system takes it.
QString plainFileName(const QString &name)
{
    QString plain = name;
    const QString foreign = AnsiText::foreignCharacters(name);
    plain.removeIf([&](QChar character) {
        const bool isPlain = character.isLetterOrNumber() || u" -'"_s.contains(character);
        return !isPlain || foreign.contains(character);
    });
    plain = plain.simplified();
    return plain.isEmpty() ? u"Picture"_s : plain;
}

} // namespace

PictureFolder::PictureFolder(const DataFolder &folder)
    : m_folder(folder)
{}

QString PictureFolder::lastUsed() const
{
    const QString stored = ValueFile::readLine(m_folder.filePath(u"GColor4.Fil"_s));
    return stored.isEmpty() ? u"C:\\"_s : stored;
}

bool PictureFolder::remember(const QString &folder)
{
    QString line = QDir::toNativeSeparators(folder);
    if (!line.endsWith(QDir::separator()))
        line += QDir::separator();
    // A line end in a folder's name would be read back as the end of the path.
    if (!AnsiText::isHoldable(line) || line.contains(u'\r') || line.contains(u'\n'))
        return false;
    const QByteArray content = AnsiText::encode(line) + "\r\n";
    return Saving::replaceFile(m_folder, u"GColor4.Fil"_s, content);
}

QString PictureFolder::locate(const QString &stored) const
{
    if (isFile(stored))
        return stored;
    const QString name = fileName(stored);
    if (name.isEmpty() || name == noPicture || name == "."_L1 || name == ".."_L1)
        return {};
    const QString beside = m_folder.existingFile({}, name);
    return beside.isEmpty() ? m_folder.existingFile(u"Pictures"_s, name) : beside;
}

PictureFolder::Kept PictureFolder::keep(QByteArrayView photograph, const QString &name, qsizetype width)
{
    const QString place = m_folder.filePath(u"Pictures"_s);
    const DataFolder pictures(place, m_folder.whyReadOnly());
    const QString plain = plainFileName(name);
    QString file = plain + u".jpg"_s;
    for (int number = 2; QFileInfo::exists(pictures.filePath(file)); ++number)
        file = plain + u' ' + QString::number(number) + u".jpg"_s;
    const QString path = QDir::toNativeSeparators(pictures.filePath(file));
    if (!isStorable(path, width))
        return {{}, false};
    const bool isKept = !m_folder.isReadOnly() && !photograph.isEmpty() && QDir().mkpath(place) &&
                        Saving::replaceFile(pictures, file, photograph);
    return {isKept ? path : QString(), true};
}

QStringList PictureFolder::fileKinds()
{
    return u"*.bmp;*.wmf;*.emf;*.jpg;*.gif"_s.split(u';');
}

bool PictureFolder::isStorable(const QString &path, qsizetype width)
{
    return AnsiText::isHoldable(path) && AnsiText::encode(path).size() <= width &&
           AnsiText::trimmedBlanksRight(path) == path;
}
