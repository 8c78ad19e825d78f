// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

/// A file of the sample household, to be read where it is; its folder when `name` is empty.
inline QString householdPath(const QString &name = {})
{
    return QStringLiteral(QUILLERY_TEST_DATA "/household/data/") + name;
}

/// What a correct program shows from one part of it.
inline QJsonObject expectedOf(const QString &part)
{
    QFile file(QStringLiteral(QUILLERY_TEST_DATA "/household/expected.json"));
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail("no expectations", __FILE__, __LINE__);
    return QJsonDocument::fromJson(file.readAll())[part].toObject();
}
