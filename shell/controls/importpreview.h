// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

#include <QByteArray>

#include <memory>
#include <optional>

class ImportTable;
class IncomingFile;
class QComboBox;
class QMenu;
class QTableView;
class QVBoxLayout;
class SlicedWork;

/// The preview of a file that is to come in: words about what is taken, its lines with what becomes of each,
/// and the button that takes them, in one step. What its columns are in the file is said by a click on a
/// heading or with a button, where the file has columns that are guessed.
class ImportPreview : public TaskPanel
{
    Q_OBJECT
public:
    struct Traits {
        QString name; ///< "carImport": its parts are carImportPanel, carImportList, carImportTake and so on
        QString take; ///< on the button that takes the lines
        QString lines = QStringLiteral("Lines of the file"); ///< the table, to a screen reader
        QStringList filters{};   ///< the first shows all lines; none: it has no filters
        bool hasColumns = false; ///< what the columns are can be said
    };

public slots:
    void leave() override;

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// Of the reading; `total` 0: it is over.
    void progressed(int done, int total);

protected:
    explicit ImportPreview(const Traits &traits, QWidget *parent = nullptr);
    ~ImportPreview() override;

    /// A longer file is not read.
    static constexpr qint64 mostBytes = qint64(64) * 1024 * 1024;
    /// What is in the file at `path`, of which the name becomes the title; nothing, with the reason said,
    /// where it cannot be read.
    std::optional<QByteArray> contents(const QString &path);
    /// Reads the lines of `file` and shows them. It is kept until another one is read.
    void read(std::unique_ptr<IncomingFile> file);
    bool isReading() const;
    /// Goes on with steps that are to be done anew, as in the beginning.
    void goOn();
    /// The words and the button, when something that they tell of is no longer as it was.
    void refresh();
    /// Puts a form above the words; Tab comes to it behind the lines.
    void addForm(QWidget *form);

    /// Above the lines: what is taken of them, or why nothing can be.
    virtual QString hint() const = 0;
    /// In the foot, when all is read.
    virtual QString whatBecomes() const;
    /// Why no line can be taken at present; empty when they can.
    virtual QString whyReadOnly() const { return {}; }
    virtual QString nothingToTake() const;
    /// The lines are read and shown.
    virtual void shown();
    /// Takes the ticked lines, and leaves.
    virtual void take() = 0;
    virtual QString tooLong(const QString &name) const;

    /// The column of the table that takes the room that the others leave; -1: the last.
    virtual int wideColumn() const { return -1; }
    virtual void shareWidth();

    QTableView &view() const { return *m_view; }
    ImportTable &table() const { return *m_table; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeView(const QString &accessibleName);
    void makeFilter(const Traits &traits);
    void finish();
    int widthOf(int column) const;
    void addChoices(QMenu *menu, int column);
    void openColumns();
    void openChoices(int section);

    SlicedWork *m_work;
    ImportTable *m_table;
    QTableView *m_view;
    QLabel *m_hint;
    QVBoxLayout *m_rows;
    std::unique_ptr<IncomingFile> m_file;
    QComboBox *m_filter = nullptr;
    QPushButton *m_columns = nullptr;
    QPushButton *m_take = nullptr;
};
