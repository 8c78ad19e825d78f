// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/itemdrag.h"

#include <QDataStream>
#include <QIODevice>
#include <QList>
#include <QMimeData>

std::unique_ptr<QMimeData> ItemDrag::of(const QString &format, const std::vector<int> &items)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QList<int>(items.begin(), items.end());
    auto data = std::make_unique<QMimeData>();
    data->setData(format, bytes);
    return data;
}

bool ItemDrag::isOne(const QString &format, const QMimeData *data)
{
    return data && data->hasFormat(format);
}

std::vector<int> ItemDrag::itemsOf(const QString &format, const QMimeData *data)
{
    if (!isOne(format, data))
        return {};
    QList<int> items;
    QDataStream stream(data->data(format));
    stream >> items;
    return {items.begin(), items.end()};
}
