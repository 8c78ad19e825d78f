// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperopening.h"

#include <QDialog>

#include <memory>

class Keeper;
class QLabel;
class QLineEdit;
class QPushButton;
class ThreadedStep;

/// Asks for the master password once more, while the keeper is open: accepted with the right one alone. Wrong
/// answers are counted as those in front of the locked keeper are.
class MasterDialog final : public QDialog
{
    Q_OBJECT
public:
    /// `title` is what it is asked for.
    MasterDialog(Keeper &keeper, const QString &title, QWidget *parent);

    void accept() override;

private:
    void judge(const KeeperOpening &opening);

    static constexpr int allowed = 3;

    Keeper &m_keeper;
    ThreadedStep *m_step;
    QLineEdit *m_box;
    QLabel *m_refusal;
    QPushButton *m_ok;
    int m_wrong = 0;
};
