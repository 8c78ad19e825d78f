// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QSet>
#include <QWidget>

#include <vector>

class AddressViewer;
class QLabel;
class QListView;

/// Names that can be ticked one by one. What is ticked goes by the line that a name has in the index: it
/// stays when other names are listed meanwhile.
class TickedNames final : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// Lists the rows as `viewer` shows them now.
    void list(const AddressViewer &viewer);

    /// All names or none, listed or not.
    void tickAll(bool isTicked);
    void tickOnly(int line);
    bool isTicked(int line) const { return m_isUsual != m_others.contains(line); }
    int tickedCount() const;
    int firstTicked() const; ///< row of the first one; -1 without any

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void ticksChanged();

private:
    struct Name {
        QString text;
        int line; ///< as the viewer has it
    };

    void changeAll();

    std::vector<Name> m_names;
    bool m_isUsual = true; ///< whether a name is ticked that is not among the others
    QSet<int> m_others;    ///< lines
};

/// The list of such names, with "All" and "None" and the number of those that are ticked.
class TickList final : public QWidget
{
    Q_OBJECT
public:
    explicit TickList(QWidget *parent = nullptr);

    TickedNames &names() const { return *m_names; }
    /// Brings the first ticked name into sight.
    void showTicked();

private:
    void refresh();

    TickedNames *m_names;
    QListView *m_view;
    QLabel *m_count;
};
