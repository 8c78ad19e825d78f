// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class DataFolder;
class QLayout;
class QLineEdit;
class QPushButton;

/// The About box: what the program is, its version, its licence, what it is built with, and which folder
/// holds the household.
class About1 final : public QDialog
{
    Q_OBJECT
public:
    About1(const DataFolder &folder, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLayout *makeWords(const DataFolder &folder);
    QLineEdit *makeFolderBox(const DataFolder &folder);
    QPushButton *makeOk();
};
