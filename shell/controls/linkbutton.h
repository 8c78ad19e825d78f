// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

/// A few underlined words beside a label that lead somewhere. They take the ink of links on their panel, and
/// keep their room while they are hidden.
class LinkButton final : public QAbstractButton
{
    Q_OBJECT
public:
    LinkButton(const QString &name, const QString &text, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
