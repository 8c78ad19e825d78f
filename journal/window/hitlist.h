// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalhit.h"
#include "shell/core/programstate.h"

#include <QAbstractListModel>
#include <QListView>

#include <functional>

/// What the search has found: the days, newest first, each with a line of what stands around the words, which
/// are marked.
class HitList final : public QListView
{
    Q_OBJECT
public:
    explicit HitList(QWidget *parent);

    /// What a hit looks like is asked when it is seen.
    using Look = std::function<JournalHit(QDate)>;
    void setHits(const QList<QDate> &dates, const Look &look, DateStyle style);
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
