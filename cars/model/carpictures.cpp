// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carpictures.h"

#include "cars/model/carfiles.h"
#include "shell/core/undosteps.h"
#include "shell/pictures/picturefolder.h"

#include <QDir>

#include <memory>
#include <tuple>
#include <vector>

QStringList CarPictures::missing(const DataFolder &folder)
{
    const PictureFolder places(folder);
    QStringList pictures;
    for (const Vehicle &vehicle : VehicleList(folder).vehicles()) {
        const VehicleSheet sheet = VehicleFiles(folder).readSheet(vehicle.slot).value;
        const QString &stored = sheet.field(VehicleSheet::Picture);
        if (!stored.isEmpty() && places.locate(stored).isEmpty())
            pictures << stored;
    }
    pictures.removeDuplicates();
    return pictures;
}

std::optional<UndoStep> CarPictures::relink(const DataFolder &folder, DateStyle style,
                                            const QHash<QString, QString> &files)
{
    CarFiles cars(folder, style);
    std::vector<UndoStep> steps;
    for (const Vehicle &vehicle : cars.vehicles()) {
        const CarRecord before = cars.read(vehicle.slot).record;
        CarRecord after = before;
        const QString now = files.value(before.sheet.field(VehicleSheet::Picture));
        if (now.isEmpty())
            continue;
        after.sheet.fields[VehicleSheet::Picture] = QDir::toNativeSeparators(now);
        const std::optional<CarChange> done = cars.save(before, after);
        if (!done) {
            if (const UndoStep all = UndoSteps::joined({}, steps); all.undo)
                std::ignore = all.undo();
            return {};
        }
        const auto change = std::make_shared<CarChange>(*done);
        steps.push_back({{},
                         [change, &folder] { return change->undo(folder); },
                         [change, &folder] { return change->redo(folder); }});
    }
    return UndoSteps::joined({}, steps);
}
