// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A box for tags, separated by commas. Those that are known are offered while one is typed.
class TagBox final : public QLineEdit
{
    Q_OBJECT
public:
    explicit TagBox(const QString &name, QWidget *parent);

    void setOffered(const QStringList &tags);
};
