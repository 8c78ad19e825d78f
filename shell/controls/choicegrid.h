// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QButtonGroup;
class QGridLayout;

/// Choices one below the other, each with what it asks for beside it, which cannot be used while another one
/// is chosen. Tab leads to the chosen one and to what stands beside.
class ChoiceGrid final : public QWidget
{
    Q_OBJECT
public:
    /// The choices bear its name and their number, from 0: "printWhat_0".
    explicit ChoiceGrid(const QString &name, QWidget *parent = nullptr);

    void add(const QString &caption, QWidget *beside = nullptr);
    /// The focus comes to it.
    void choose(int number);
    int chosen() const;
    /// Says why a choice cannot be made; empty where it can.
    void setWhyNot(int number, const QString &reason);
    /// The last of it that Tab comes to.
    QWidget *lastInTab() const { return m_last; }

signals:
    void chosenChanged();

private:
    void follow();
    void leadOn(QWidget *part);

    QButtonGroup *m_choices;
    QGridLayout *m_grid;
    QList<QWidget *> m_besides; ///< of each choice, or null
    QWidget *m_last = nullptr;
};
