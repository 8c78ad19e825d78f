// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

/// The name list as it is drawn. A name that is cut shows itself whole in its tool tip.
class NameListView final : public QListView
{
    Q_OBJECT
public:
    explicit NameListView(QWidget *parent = nullptr);

protected:
    bool viewportEvent(QEvent *event) override;
};
