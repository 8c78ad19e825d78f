// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"
#include "shell/writing/corrections.h"

#include <vector>

class QTableView;
class SearchBox;
class Writing;
template <typename Row>
class RowsModel;

/// "Correction Table": what is corrected while one types, to be searched and changed. It is saved with each
/// change; the last changes can be taken back as long as it is open.
class CorrectionPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit CorrectionPanel(Writing &writing, QWidget *parent = nullptr);

    /// Shows the table as it is now.
    void open();

signals:
    /// A sentence for the status bar.
    void said(const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeWork();
    void makeButtons();
    void showRows(const QString &chosen = {});
    void showChosen();
    void refreshButtons();
    /// Why what stands in the boxes is no pair that may be added, or be put in place of the chosen one.
    QString whyNoPair() const;
    QString whyNotAdd() const;
    QString whyNotChange() const;
    QString chosen() const;
    QString wrong() const;
    QString right() const;

    void add();
    void change();
    void remove();
    void restore();
    void undo();
    void enter();
    void takeBackRefusal();
    /// False where it could not be saved: then the table is as it was.
    bool save(const Corrections &table, const QString &chosen);

    Writing &m_writing;
    SearchBox *m_search;
    RowsModel<Correction> *m_rows;
    QTableView *m_view;
    FieldBox *m_wrong;
    FieldBox *m_right;
    struct {
        QPushButton *add, *change, *remove, *restore, *undo;
    } m_buttons{};
    std::vector<Corrections> m_before;
    bool m_isRefused = false; ///< and it was said why
};
