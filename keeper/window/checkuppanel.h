// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keepercheckup.h"
#include "shell/controls/taskpanel.h"

#include <vector>

class Keeper;
class QTableView;
template <typename Row>
class RowsModel;
template <typename Row>
struct TableColumn;

/// "Check-Up": what should be looked after among the entries; Enter, a double click or the button opens the
/// entry of a line.
class CheckupPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit CheckupPanel(QWidget *parent = nullptr);

    void show(const QList<KeeperSummary> &entries, QDate today, DateStyle style);
    void forget();

signals:
    void chosen(const QByteArray &id);

private:
    /// A line with the heading of its section.
    struct Row {
        QString heading;
        QString advice;
        KeeperCheckup::Line line;
    };

    static std::vector<TableColumn<Row>> columns();
    void followRow();
    void choose();

    RowsModel<Row> *m_model;
    QLabel *m_words;
    QTableView *m_view;
    QLabel *m_advice;
    QPushButton *m_open;
};
