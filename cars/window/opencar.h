// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carfiles.h"
#include "cars/model/carneeds.h"
#include "shell/core/undostep.h"

#include <QObject>

#include <memory>
#include <optional>

struct Program;

/// The car that is open: what its files have, and what it has become since by typing. Every edit is a step
/// that can be taken back; nothing is written before `save`.
class OpenCar final : public QObject
{
    Q_OBJECT
public:
    explicit OpenCar(const Program &program, QObject *parent = nullptr);

    CarFiles &files() { return m_files; }
    const CarFiles &files() const { return m_files; }

    /// Of the list; 0 where no car is open, and for a new one.
    int slot() const { return m_record->vehicle.slot; }
    bool isOpen() const { return slot() > 0 || m_isNew; }
    /// Whether it is being created, and has no slot yet.
    bool isNew() const { return m_isNew; }
    /// What it is called in the list.
    QString savedName() const { return m_saved->vehicle.name; }
    /// As it is now. A copy of it shares what is not changed.
    const CarRecord &record() const { return *m_record; }
    DistanceUnit unit() const { return m_record->sheet.unit; }
    /// How it is driven, and what it needs, in the order of the schedule; as it is now.
    const DrivingLog &drivingLog() const { return outlook().log; }
    const QList<CarNeed> &needs() const { return outlook().needs; }
    bool isModified() const;
    /// Why nothing may be typed into what the file of `part` holds; empty where it may.
    QString whyLocked(CarPart part) const;

    /// Shows what the files of `slot` hold; what was typed is dropped. 0: no car.
    void load(int slot);
    void reload() { load(slot()); }
    /// What the first car will be counted in, where there is none yet: it is kept with that car.
    void setFirstUnit(DistanceUnit unit);
    /// A car that no file has yet begins as `record`.
    void startNew(const CarRecord &record);
    /// Makes the car `wanted`, in one step that undo calls `title`; nothing happens where it is so already.
    /// Of a part that was written `atOnce` undo and redo write the file too, unless more of it is unsaved.
    void change(const QString &title, const CarRecord &wanted, std::optional<CarPart> atOnce = {});
    /// Writes what was typed. False when the disk refuses.
    [[nodiscard]] bool save();
    /// Writes what `wanted` has in the file of `part`, and nothing else of it.
    [[nodiscard]] bool savePart(CarPart part, const CarRecord &wanted);
    /// The names of its files, and of the list.
    QStringList fileNames() const;

signals:
    /// Another car is open, or this one was read anew: what was typed before is gone.
    void loaded();
    /// The car is another than before: loaded, edited, or an edit taken back.
    void changed();
    /// Something was edited, and may be taken back.
    void edited(const UndoStep &step);
    /// The files were read or written by this window.
    void fileTouched();
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    using Record = std::shared_ptr<const CarRecord>;
    using States = std::array<VehicleFiles::State, carParts.size()>;

    /// Worked out when it is first asked for.
    struct Outlook {
        DrivingLog log;
        QList<CarNeed> needs;
    };

    const Outlook &outlook() const;
    void setRecord(const Record &record);
    void setTyped(const Record &record);
    void open(const CarRecord &record, const States &states, bool isNew);
    bool write(const CarRecord &wanted);
    CarRecord withPart(CarPart part, const CarRecord &wanted) const;
    ChangeResult exchange(const Record &shown, const Record &wanted, std::optional<CarPart> atOnce);

    const Program &m_program;
    CarFiles m_files;
    Record m_record;
    Record m_saved;
    QString m_ownReading; ///< the last one that no fill-up raised since the car was opened
    States m_states{};
    std::optional<DistanceUnit> m_firstUnit;
    bool m_isNew = false;
    mutable std::optional<Outlook> m_outlook;
};
