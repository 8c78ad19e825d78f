// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemdrag.h"

#include <QDataStream>
#include <QIODevice>
#include <QList>
#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString format = u"application/x-quillery-things-to-do"_s;
} // namespace

QStringList ItemDrag::formats()
{
    return {format};
}

std::unique_ptr<QMimeData> ItemDrag::of(const std::vector<int> &items)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QList<int>(items.begin(), items.end());
    auto data = std::make_unique<QMimeData>();
    data->setData(format, bytes);
    return data;
}

bool ItemDrag::isOne(const QMimeData *data)
{
    return data && data->hasFormat(format);
}

std::vector<int> ItemDrag::itemsOf(const QMimeData *data)
{
    if (!isOne(data))
        return {};
    QList<int> items;
    QDataStream stream(data->data(format));
    stream >> items;
    return {items.begin(), items.end()};
}
