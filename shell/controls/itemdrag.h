// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <vector>

class QMimeData;

/// Items of a window on their way to another place in it, by their numbers. Each kind of item has a format of
/// its own, so that no other window takes it.
namespace ItemDrag {

std::unique_ptr<QMimeData> of(const QString &format, const std::vector<int> &items);
bool isOne(const QString &format, const QMimeData *data);
std::vector<int> itemsOf(const QString &format, const QMimeData *data);

} // namespace ItemDrag
