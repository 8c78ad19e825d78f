#pragma once

#include "planner/model/plannersearch.h"
#include "shell/core/programstate.h"

#include <QAbstractTableModel>
#include <QWidget>

class ElidedLabel;
class QLabel;
class QTableView;

/// The rows that a search found, as a table of date, time and text.
class HitModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Date, Time, Text, ColumnCount };

    HitModel(DateStyle style, QObject *parent);

    void setHits(std::vector<PlannerHit> hits);
    const PlannerHit &hit(int row) const { return m_hits[std::size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    DateStyle m_style;
    std::vector<PlannerHit> m_hits;
};

/// The hits of a search over all years; a click or Enter opens the day.
class SearchPanel final : public QWidget
{
    Q_OBJECT
public:
    explicit SearchPanel(DateStyle style, QWidget *parent = nullptr);

    /// Shows what a search for `text` found; the hit on or after `today` that is nearest is chosen.
    void show(const QString &text, std::vector<PlannerHit> hits, QDate today);

signals:
    void hitOpened(QDate date, int row);
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open(int row);

    HitModel *m_model;
    ElidedLabel *m_title;
    QLabel *m_count;
    QTableView *m_view;
};
