// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLayout;
class QPushButton;

/// The About box: what the program is, its version, its licence and what it is built with.
class About1 final : public QDialog
{
    Q_OBJECT
public:
    explicit About1(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLayout *makeWords();
    QPushButton *makeOk();
};
