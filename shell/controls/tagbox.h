// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A box for tags, separated by commas or by another sign. Those that are known are offered while one is
/// typed.
class TagBox final : public QLineEdit
{
    Q_OBJECT
public:
    TagBox(const QString &name, QWidget *parent, QChar separator = u',');

    void setOffered(const QStringList &tags);
};
