// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QImage>
#include <QTemporaryDir>

#include <memory>

/// The chart as the picture file that printed pages take it from: "Chartxxx.jpg" in the data folder, replaced
/// each time.
class ChartPicture
{
public:
    static constexpr QLatin1StringView fileName{"Chartxxx.jpg"};

    explicit ChartPicture(const DataFolder &folder)
        : m_folder(folder)
    {}

    /// The path of the picture; in a folder of its own while the data folder takes none, empty for a null
    /// image.
    QString store(const QImage &image);

private:
    const DataFolder &m_folder;
    std::unique_ptr<QTemporaryDir> m_elsewhere;
};
