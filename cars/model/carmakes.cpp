// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carmakes.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

// The macro has to stand outside every namespace.
static void initializeMakes()
{
    Q_INIT_RESOURCE(quillery_carmakes);
}

namespace {

/// "Saab: 9-3, 9-5, 900".
QStringList lines()
{
    initializeMakes();
    QFile file(u":/cars/makes.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

QStringList CarMakes::makes()
{
    QStringList makes = lines();
    for (QString &make : makes)
        make.truncate(make.indexOf(u':'));
    return makes;
}

QStringList CarMakes::models(const QString &make)
{
    const QString beginning = make.trimmed() + u": "_s;
    for (const QString &line : lines()) {
        if (line.startsWith(beginning, Qt::CaseInsensitive))
            return line.sliced(beginning.size()).split(u", "_s);
    }
    return {};
}
