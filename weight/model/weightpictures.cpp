// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightpictures.h"

#include "shell/core/undosteps.h"
#include "shell/pictures/picturefolder.h"
#include "weight/model/personfiles.h"

#include <QDir>

#include <memory>
#include <tuple>
#include <vector>

QStringList WeightPictures::missing(const DataFolder &folder)
{
    const PictureFolder places(folder);
    QStringList pictures;
    const PersonFiles persons(folder);
    for (const QString &name : persons.names()) {
        const WeightSheet sheet = persons.read(name).sheet;
        for (const QString &stored : {sheet.beginningPicture, sheet.currentPicture}) {
            if (!stored.isEmpty() && places.locate(stored).isEmpty())
                pictures.append(stored);
        }
    }
    pictures.removeDuplicates();
    return pictures;
}

std::optional<UndoStep> WeightPictures::relink(const DataFolder &folder, const QHash<QString, QString> &files)
{
    PersonFiles persons(folder);
    std::vector<UndoStep> steps;
    for (const QString &name : persons.names()) {
        const WeightSheet before = persons.read(name).sheet;
        WeightSheet after = before;
        for (QString *stored : {&after.beginningPicture, &after.currentPicture}) {
            if (const QString now = files.value(*stored); !now.isEmpty())
                *stored = QDir::toNativeSeparators(now);
        }
        if (after == before)
            continue;
        const std::optional<WholeFilesChange> done = persons.save(name, after);
        if (!done) {
            if (const UndoStep all = UndoSteps::joined({}, steps); all.undo)
                std::ignore = all.undo();
            return {};
        }
        const auto change = std::make_shared<WholeFilesChange>(*done);
        steps.push_back({{},
                         [change, &folder] { return change->undo(folder); },
                         [change, &folder] { return change->redo(folder); }});
    }
    return UndoSteps::joined({}, steps);
}
