// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalhit.h"
#include "shell/core/programstate.h"

#include <QAbstractListModel>
#include <QListView>

/// What the search has found: the days, newest first, each with a line of what stands around the words, which
/// are marked.
class HitList final : public QListView
{
    Q_OBJECT
public:
    explicit HitList(QWidget *parent);

    void setHits(const QList<JournalHit> &hits, DateStyle style);
    QDate date(const QModelIndex &index) const;

signals:
    /// By a click or with Enter.
    void opened(QDate date);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    class Rows;

    Rows *m_rows;
};
