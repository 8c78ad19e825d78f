// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carrecord.h"
#include "cars/window/cardesk.h"
#include "cars/window/cargrid.h"
#include "shell/core/message.h"

#include <QWidget>

#include <functional>

class EntryModel;
class LogModel;
class QLabel;
class WholeRows;
enum class CarPart;

/// A history of the open car or its fuel tracker: the row in which something new is typed, and below it all
/// that was entered, the newest first.
class LogPane final : public QWidget
{
    Q_OBJECT
public:
    /// What its parts are called.
    struct Names {
        QString entry;    ///< the row of something new
        QString list;     ///< the rows that are there
        QString calendar; ///< beside a date
    };
    /// How an entry is added: by a person who asked for it, or because the view is left with it.
    enum class Adding { Asked, OnLeaving };
    /// Has a say in what the car becomes by an entry, its `row` in the file; nothing is asked on leaving.
    using Amend = std::function<void(CarRecord &wanted, qsizetype row, Adding adding)>;

    LogPane(const CarDesk &desk, CarPart part, const Names &names,
            const std::vector<CarColumns::Width> &widths);

    LogModel &model() const { return *m_model; }
    CarGrid &list() const { return *m_list; }
    CarGrid &entry() const { return *m_entry; }
    void setAmend(Amend amend) { m_amend = std::move(amend); }

    /// Shows the open car as it is now.
    void refresh();
    /// What is still being typed goes into the open car.
    void finishEdit();
    /// Adds what stands in the row of something new. Without a word where nothing does.
    void take();
    /// Puts `cells` into the row of something new, for a person to look at and to add.
    void propose(const QStringList &cells);
    /// Whether a row is chosen.
    bool isRowChosen() const;
    enum class Removing { Typed, Written };
    /// Takes the chosen row away, from its file too where it is to be written at once; what was done, in
    /// words. Empty where the disk refuses.
    QString removeChosen(Removing how);
    void copy();
    void paste();

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    void noticed(const Message &message);
    /// A row was added, as `line` says.
    void added(const QString &line);
    /// Another row is chosen, or none.
    void chosen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    CarGrid *makeGrid(const QString &name, QAbstractItemModel *model, const QString &accessibleName);
    void connectGrids();
    template <typename Model>
    void connectModel(const Model *model, CarGrid *grid);
    void add(Adding adding);
    void place();

    CarDesk m_desk;
    Amend m_amend;
    LogModel *m_model;
    EntryModel *m_new;
    DatePicker *m_picker;
    CarGrid *m_entry;
    CarGrid *m_list;
    WholeRows *m_rows;
    QLabel *m_empty;
};
