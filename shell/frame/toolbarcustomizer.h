// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class ToolbarLayout;

/// The customisation dialog of a toolbar: pick, order, separators, drag, reset. Every change applies and is
/// saved at once. Enter in the list of available buttons adds one, Del in the other takes one off.
class ToolbarCustomizer final : public QDialog
{
    Q_OBJECT
public:
    ToolbarCustomizer(ToolbarLayout &layout, QWidget *parent);

    /// Whether the last change could be saved; true without any.
    bool isSaved() const { return m_isSaved; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void arrange();
    void fill();
    void addRow(QListWidget *list, const QString &name);
    bool isHidden(const QString &name) const;
    int shownRowFrom(int row, int by) const;
    void choose(int row);
    QStringList order() const;
    void tell(bool isSaved);
    void apply(const QStringList &names, int current);
    void applyOrder();
    void insert(const QString &name);
    void addChosen();
    void removeChosen();
    void moveChosen(int by);
    void offerButtons();

    ToolbarLayout &m_layout;
    QListWidget *m_available;
    QListWidget *m_shown;
    QCheckBox *m_showOthers;
    QLabel *m_hint; ///< what the dialog does, or that it could not be saved
    QPushButton *m_add;
    QPushButton *m_remove;
    QPushButton *m_up;
    QPushButton *m_down;
    bool m_isSaved = true;
};
