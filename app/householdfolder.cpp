// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/householdfolder.h"

#include "shell/core/framelines.h"
#include "shell/core/settingskeys.h"
#include "storage/log.h"

#include <QDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isLeftByEveryRun(const QString &name)
{
    const auto isNamed = [&name](const SettingsFile &file) {
        return name.compare(QLatin1StringView(file.name), Qt::CaseInsensitive) == 0;
    };
    return isNamed(SettingsKeys::generalFile) || isNamed(SettingsKeys::colorFile1) ||
           isNamed(SettingsKeys::colorFile2) || isNamed(SettingsKeys::colorFile3);
}

} // namespace

bool HouseholdFolder::holdsData(const DataFolder &folder)
{
    // Looking at a function makes its files, empty.
    const QFileInfoList files = QDir(folder.path()).entryInfoList(QDir::Files | QDir::Hidden);
    return std::ranges::any_of(files, [](const QFileInfo &file) {
        const QString ending = file.suffix().toLower();
        return (ending == QLatin1StringView("fil") || ending == QLatin1StringView("cal")) &&
               file.size() > 0 && !isLeftByEveryRun(file.fileName());
    });
}

QString HouseholdFolder::filesOfProgram(const QString &programFolder)
{
    const QDir folder(programFolder);
    const QDir shared(QDir::cleanPath(folder.filePath(u"../share/quillery"_s)));
    return folder.dirName() == u"bin" && shared.exists() ? shared.path() : programFolder;
}

DataFolder HouseholdFolder::choose(const DataFolder &programFolder, const QString &own,
                                   const WriteTest &isWritable)
{
    const bool isInstalled = filesOfProgram(programFolder.path()) != programFolder.path();
    if (!isInstalled && isWritable(programFolder))
        return programFolder;
    if (!isInstalled && holdsData(programFolder))
        return DataFolder(programFolder.path(), FrameLines::folderCannotBeWritten());
    if (!QDir().mkpath(own))
        qCWarning(storageLog) << "cannot make the data folder" << own;
    const DataFolder folder(own);
    return isWritable(folder) ? folder : DataFolder(own, FrameLines::folderCannotBeWritten());
}
