// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"
#include "shell/core/undostep.h"
#include "weight/model/personfiles.h"

#include <QObject>

#include <functional>
#include <memory>

struct Program;

/// The person whose file is open: what the file has, and what it has become since by typing. Every edit is a
/// step that can be taken back; nothing is written before `save`.
class OpenPerson final : public QObject
{
    Q_OBJECT
public:
    /// `ask` shows a question over the window.
    OpenPerson(const Program &program, std::function<Answer(const Message &)> ask, QObject *parent);

    PersonFiles &files() { return m_files; }
    const PersonFiles &files() const { return m_files; }

    /// What the file is called after; empty where no person is open, and for a new one.
    const QString &name() const { return m_name; }
    bool isOpen() const { return !m_name.isEmpty() || m_isNew; }
    /// Whether the person is being created, and has no file yet.
    bool isNew() const { return m_isNew; }
    /// As it is now. A copy of it shares what is not changed.
    const WeightSheet &sheet() const { return m_held->sheet; }
    /// Weigh-ins that the file has behind those it counts; the first save asks whether they are taken in.
    const WeightTable &uncounted() const { return m_held->uncounted; }
    /// Puts them where the file has them, before what was added since, in one step of undo.
    void takeUncounted();
    /// Asks whether they are taken in or left out, where there are any. False: neither, for now.
    [[nodiscard]] bool settleUncounted();
    bool isModified() const;
    /// What is wrong with its file; empty when nothing is.
    QString fileTrouble() const;
    /// Why nothing may be typed; empty where it may.
    QString whyLocked() const;

    /// Shows what the file of `name` holds; what was typed is dropped. Empty: no person.
    void load(const QString &name);
    void reload() { load(m_name); }
    /// A person who has no file yet begins with an empty sheet.
    void startNew();
    /// Makes the sheet `wanted`, in one step that undo calls `title`; nothing happens where it is so already.
    /// True: it is so.
    bool change(const QString &title, const WeightSheet &wanted);
    /// The same, and writes it: to take it back, or make it again, writes too. False where `save` is.
    [[nodiscard]] bool changeAndSave(const QString &title, const WeightSheet &wanted);
    /// Writes what was typed; a name that was changed becomes the person's. False when the disk refuses, or
    /// the user would rather not.
    [[nodiscard]] bool save();
    /// Writes a file of its own under the name on the sheet, and opens it. Nothing when the disk refuses.
    [[nodiscard]] std::optional<WholeFilesChange> saveNew();
    /// The names of its file, and of the list.
    QStringList fileNames() const;

signals:
    /// Another person is open, or this one was read anew: what was typed before is gone.
    void loaded();
    /// The person has another name than before, in the list too.
    void renamed();
    /// The sheet is another than before: loaded, edited, saved, or an edit taken back.
    void changed();
    /// Something was edited, and may be taken back.
    void edited(const UndoStep &step);
    /// The files were read or written by this window.
    void fileTouched();
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    struct Held {
        WeightSheet sheet;
        WeightTable uncounted;

        bool operator==(const Held &) const = default;
    };
    using State = std::shared_ptr<const Held>;

    enum class Disk { Later, AtOnce };

    void open(const QString &name, const PersonFiles::Found &found, bool isNew);
    void hold(const QString &title, Held wanted, Disk disk = Disk::Later);
    [[nodiscard]] bool write();
    void written(const QString &name);
    ChangeResult exchange(const State &shown, const State &wanted, Disk disk);

    const Program &m_program;
    std::function<Answer(const Message &)> m_ask;
    PersonFiles m_files;
    QString m_name;
    State m_held;
    State m_saved;
    qsizetype m_counted = 0; ///< the rows that the file counted when it was read
    PersonFiles::State m_fileState = PersonFiles::State::Missing;
    bool m_isNew = false;
};
