// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/dictionaries.h"

#include "shell/writing/wordencoding.h"
#include "shell/writing/writinglines.h"
#include "storage/datafolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How far into a file its encoding is looked for: some begin with a long licence.
constexpr qint64 headBytes = 256 << 10;
/// A dictionary that does not say its encoding has this one.
const QByteArray usualEncoding = QByteArrayLiteral("ISO8859-1");

QByteArray headOf(const QString &path, qint64 bytes)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(bytes) : QByteArray();
}

/// What the line "SET ..." says.
QByteArray encodingOf(const QString &affPath)
{
    for (QByteArray line : headOf(affPath, headBytes).split('\n')) {
        if (line.startsWith("\xEF\xBB\xBF"))
            line.remove(0, 3);
        const QByteArray words = line.simplified();
        if (words.startsWith("SET "))
            return words.mid(4).left(40);
    }
    return usualEncoding;
}

/// A list of words begins with their number, by which the library lays out its memory: one that the file has
/// no room for is not believed.
bool isWordList(const QString &dicPath)
{
    QByteArray line = headOf(dicPath, 64).split('\n').first();
    if (line.startsWith("\xEF\xBB\xBF"))
        line.remove(0, 3);
    bool isNumber = false;
    const qint64 count = line.simplified().split(' ').first().toLongLong(&isNumber);
    return isNumber && count > 0 && count <= QFileInfo(dicPath).size() / 2 + 1;
}

/// Whether the letters that a file of rules names are letters. The library reads broken ones beyond their end
/// while it looks for suggestions. Flags and comments may be bytes of any kind.
bool hasWholeLetters(const QString &affPath)
{
    static constexpr std::array kinds{"TRY",  "KEY",    "REP",   "MAP",   "PHONE", "BREAK",
                                      "WORD", "IGNORE", "ICONV", "OCONV", "CHECK"};
    const QByteArray rules = headOf(affPath, Dictionaries::mostBytes);
    return !rules.contains('\0') && std::ranges::all_of(rules.split('\n'), [](const QByteArray &line) {
        const auto begins = [&line](const char *kind) { return line.startsWith(kind); };
        return line.isValidUtf8() || std::ranges::none_of(kinds, begins);
    });
}

bool isReadable(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isReadable() && file.size() > 0;
}

bool isAsItSays(const DictionaryFiles &files)
{
    const auto encoding = WordEncoding::named(files.encoding);
    return !encoding || !encoding->isUtf8() || hasWholeLetters(files.affPath);
}

QString languageOf(const QString &name)
{
    return name.section(QRegularExpression(u"[_-]"_s), 0, 0);
}

/// The names of the dictionaries that lie in `folder`.
QStringList namesIn(const QString &folder)
{
    static const QRegularExpression name(u"^[a-z]{2,3}([_-][A-Za-z0-9]+)*$"_s);
    QStringList names;
    for (const QString &file : QDir(folder).entryList({u"*.aff"_s}, QDir::Files, QDir::Name)) {
        const QString stem = file.chopped(4);
        if (name.match(stem).hasMatch() && QFileInfo(folder + u'/' + stem + u".dic"_s).isFile())
            names += stem;
    }
    return names;
}

} // namespace

QString DictionaryFiles::title() const
{
    const QLocale locale(name);
    if (locale.language() == QLocale::C)
        return name;
    QString language = QLocale::languageToString(locale.language());
    if (!name.contains(u'_') && !name.contains(u'-'))
        return language;
    return language + u" ("_s + QLocale::territoryToString(locale.territory()) + u')';
}

QStringList Dictionaries::folders(const QString &programFolder, const QString &dataFolder)
{
    QStringList folders{DataFolder(programFolder).filePath(u"dictionaries"_s),
                        DataFolder(dataFolder).filePath(u"dictionaries"_s)};
    for (const QString &shared : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders += shared + u"/hunspell"_s;
    return folders;
}

std::vector<DictionaryFiles> Dictionaries::found(const QStringList &folders)
{
    std::vector<DictionaryFiles> found;
    for (const QString &folder : folders) {
        for (const QString &name : namesIn(folder)) {
            if (std::ranges::none_of(found, [&name](const auto &other) { return other.name == name; }))
                found.push_back(
                    examined({name, folder + u'/' + name + u".aff"_s, folder + u'/' + name + u".dic"_s}));
        }
    }
    std::ranges::sort(found, {}, &DictionaryFiles::name);
    return found;
}

DictionaryFiles Dictionaries::examined(DictionaryFiles files)
{
    files.encoding = encodingOf(files.affPath);
    files.whyNot.clear();
    if (!isReadable(files.affPath) || !isReadable(files.dicPath))
        files.whyNot = WritingLines::cannotBeRead();
    else if (QFileInfo(files.affPath).size() > mostBytes || QFileInfo(files.dicPath).size() > mostBytes)
        files.whyNot = WritingLines::tooLarge();
    else if (!WordEncoding::named(files.encoding))
        files.whyNot = WritingLines::unknownEncoding(QString::fromLatin1(files.encoding));
    else if (!isWordList(files.dicPath) || !isAsItSays(files))
        files.whyNot = WritingLines::notADictionary();
    return files;
}

QStringList Dictionaries::firstChoice(const std::vector<DictionaryFiles> &found,
                                      const QString &systemLanguage)
{
    const auto first = [&found](auto isMeant) -> QStringList {
        for (const DictionaryFiles &files : found) {
            if (files.isUsable() && isMeant(files.name))
                return {files.name};
        }
        return {};
    };
    const QString language = languageOf(systemLanguage);
    QStringList choice = first([&](const QString &name) { return name == systemLanguage; });
    if (choice.isEmpty())
        choice = first([&](const QString &name) { return name == language; });
    if (choice.isEmpty())
        choice = first([&](const QString &name) { return languageOf(name) == language; });
    if (choice.isEmpty())
        choice = first([](const QString &name) { return name == "en_US"_L1; });
    return choice.isEmpty() ? first([](const QString &) { return true; }) : choice;
}
