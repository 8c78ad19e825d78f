// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/filesoutside.h"

#include "shell/program/program.h"
#include "storage/saving.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

FilesOutside::FilesOutside(Program &program, QWidget &window, const QString &key)
    : m_program(program)
    , m_window(window)
    , m_key(key)
{}

QString FilesOutside::tables()
{
    return u"Comma-separated values (*.csv *.txt *.tsv);;All files (*)"_s;
}

QString FilesOutside::lastFolder() const
{
    return m_program.store.value(m_key, QDir::homePath()).toString();
}

std::optional<QString> FilesOutside::askWhereTo(const QString &fileName, const QString &filter) const
{
    return m_program.dialogs.chooseFileToSave(&m_window, u"Export to a File"_s,
                                              QDir(lastFolder()).filePath(fileName), filter);
}

QString FilesOutside::save(const QString &path, const QByteArray &bytes) const
{
    const QFileInfo file(path);
    if (!Saving::replaceFile(DataFolder(file.path()), file.fileName(), bytes))
        return file.fileName() + u" could not be saved there"_s;
    keepFolder(path);
    return u"Saved: "_s + file.fileName();
}

std::optional<QString> FilesOutside::askWhich(const QString &filter) const
{
    return m_program.dialogs.chooseFileToOpen(&m_window, u"Bring In a File"_s, lastFolder(), filter);
}

void FilesOutside::keepFolder(const QString &path) const
{
    m_program.store.setValue(m_key, QFileInfo(path).path());
}
