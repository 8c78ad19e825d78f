// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"
#include "weight/model/personfiles.h"

#include <QObject>

#include <memory>

struct Program;

/// The person whose file is open: what the file has, and what it has become since by typing. Every edit is a
/// step that can be taken back; nothing is written before `save`.
class OpenPerson final : public QObject
{
    Q_OBJECT
public:
    explicit OpenPerson(const Program &program, QObject *parent = nullptr);

    PersonFiles &files() { return m_files; }
    const PersonFiles &files() const { return m_files; }

    /// What the file is called after; empty where no person is open, and for a new one.
    const QString &name() const { return m_name; }
    bool isOpen() const { return !m_name.isEmpty() || m_isNew; }
    /// Whether the person is being created, and has no file yet.
    bool isNew() const { return m_isNew; }
    /// As it is now. A copy of it shares what is not changed.
    const WeightSheet &sheet() const { return m_held->sheet; }
    /// Weigh-ins that the file has behind those it counts; a save drops them.
    const WeightTable &uncounted() const { return m_held->uncounted; }
    /// Puts them behind the others, in one step that undo calls `title`.
    void takeUncounted(const QString &title);
    bool isModified() const;
    /// Why nothing may be typed; empty where it may.
    QString whyLocked() const;

    /// Shows what the file of `name` holds; what was typed is dropped. Empty: no person.
    void load(const QString &name);
    void reload() { load(m_name); }
    /// A person who has no file yet begins with an empty sheet.
    void startNew();
    /// Makes the sheet `wanted`, in one step that undo calls `title`; nothing happens where it is so already.
    void change(const QString &title, const WeightSheet &wanted);
    /// Writes what was typed; a name that was changed becomes the person's. False when the disk refuses.
    [[nodiscard]] bool save();
    /// Writes a file of its own under the name on the sheet, and opens it. Nothing when the disk refuses.
    [[nodiscard]] std::optional<WeightChange> saveNew();
    /// The names of its file, and of the list.
    QStringList fileNames() const;

signals:
    /// Another person is open, or this one was read anew: what was typed before is gone.
    void loaded();
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

    void open(const QString &name, const PersonFiles::Found &found, bool isNew);
    void hold(const QString &title, Held wanted);
    void written(const QString &name);
    ChangeResult exchange(const State &shown, const State &wanted);

    const Program &m_program;
    PersonFiles m_files;
    QString m_name;
    State m_held;
    State m_saved;
    PersonFiles::State m_fileState = PersonFiles::State::Missing;
    bool m_isNew = false;
};
