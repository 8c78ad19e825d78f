// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/programmodule.h"

#include "storage/log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QStringList>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

#ifdef Q_OS_WIN
constexpr QLatin1StringView ending(".dll");
#else
constexpr QLatin1StringView ending(".so");
#endif

/// The first file of this name; empty where there is none. Among the folders of Qt's plugins is the program's
/// own.
QString pathOf(const QString &name)
{
    QStringList folders = QCoreApplication::libraryPaths();
    for (QString &folder : folders)
        folder += u"/modules"_s;
    folders.append(QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../lib/quillery"_s));
    const QString file = name + ending;
    for (const QString &folder : std::as_const(folders)) {
        if (QFileInfo(folder + u'/' + file).isFile())
            return folder + u'/' + file;
    }
    return {};
}

} // namespace

QFunctionPointer ProgramModule::function(const QString &name, const char *symbol)
{
    const QString path = pathOf(name);
    if (path.isEmpty())
        return nullptr;
    QLibrary library(path);
    const QFunctionPointer found = library.resolve(symbol);
    if (!found)
        qCWarning(storageLog).noquote() << "Cannot use" << path << "-" << library.errorString();
    return found;
}
