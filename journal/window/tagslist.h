// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QWidget>

class QLabel;
class QListView;
class WholeRows;
class QModelIndex;
class QStandardItemModel;

/// The tags of all entries with how many have them; one leads to these.
class TagsList final : public QWidget
{
    Q_OBJECT
public:
    explicit TagsList(QWidget *parent);

    void setTags(const QMap<QString, int> &tags);

    int count() const;
    /// Of everything above the list.
    int headHeight() const;
    int rowsHeight(int rows) const;

signals:
    void tagChosen(const QString &tag);

private:
    void open(const QModelIndex &index);

    QStandardItemModel *m_rows;
    QListView *m_list;
    WholeRows *m_whole;
    QLabel *m_nothing;
};
