#pragma once

#include "planner/model/plannersearch.h"
#include "shell/core/programstate.h"

#include <QWidget>

class ElidedLabel;
class QLabel;
class QTableView;
template <typename Row>
class RowsModel;

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

    RowsModel<PlannerHit> *m_model;
    ElidedLabel *m_title;
    QLabel *m_count;
    QTableView *m_view;
};
