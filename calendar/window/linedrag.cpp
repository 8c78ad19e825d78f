// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/linedrag.h"

#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString kind = u"application/x-quillery-calendar-line"_s;
} // namespace

QMimeData *LineDrag::mimeData(const Line &line)
{
    auto *data = new QMimeData;
    data->setData(
        kind, QByteArray(line.date.toString(Qt::ISODate).toLatin1() + ' ' + QByteArray::number(line.line)));
    return data;
}

std::optional<LineDrag::Line> LineDrag::read(const QMimeData *data)
{
    const QList<QByteArray> parts = data->data(kind).split(' ');
    if (parts.size() != 2)
        return {};
    bool isNumber = false;
    const Line line{QDate::fromString(QString::fromLatin1(parts[0]), Qt::ISODate), parts[1].toInt(&isNumber)};
    return line.date.isValid() && isNumber && line.line >= 0 ? std::optional(line) : std::nullopt;
}
