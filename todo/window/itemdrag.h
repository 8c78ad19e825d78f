// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QMimeData;

/// Things to do on their way to another place of the window, by their ids.
namespace ItemDrag {

QStringList formats();
std::unique_ptr<QMimeData> of(const std::vector<int> &items);
bool isOne(const QMimeData *data);
std::vector<int> itemsOf(const QMimeData *data);

} // namespace ItemDrag
