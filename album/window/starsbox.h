// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractSlider>

/// Five stars, of which as many are filled as a picture is rated; a click on the last of them takes them all
/// away. Arrow keys and the digits 0 to 5 do the same.
class StarsBox final : public QAbstractSlider
{
    Q_OBJECT
public:
    explicit StarsBox(const QString &name, QWidget *parent = nullptr);

    /// -1: several pictures, rated differently.
    void show(int rating);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// Another rating was chosen.
    void rated(int rating);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void rate(int rating);

    bool m_isMixed = false;
};
