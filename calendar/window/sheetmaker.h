// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/calendarpages.h"
#include "calendar/model/wallcalendar.h"
#include "calendar/window/calendarsheet.h"
#include "shell/pictures/pictureloader.h"

#include <QImage>
#include <QObject>

#include <memory>

struct Program;

/// Makes the sheets that are worked on: laid out as they will be printed. Photos are read beside, and come
/// when they are there.
class SheetMaker final : public QObject
{
    Q_OBJECT
public:
    SheetMaker(const Program &program, QObject *parent);
    ~SheetMaker() override;

    /// The sheet of a month: its own one where the sheets of the calendar have no room for lines.
    std::shared_ptr<const CalendarSheet> sheet(const WallCalendar &calendar, QDate month);
    /// The same as a small picture that fits `pixels`.
    QImage picture(const WallCalendar &calendar, QDate month, QSize pixels) const;
    /// What pages of the calendar are made for.
    CalendarPages::Source source(const CalendarLook &look) const;

signals:
    /// The photo of the sheet that was made last is there now.
    void photoRead();

private:
    std::shared_ptr<const PageGrid> grid(const WallCalendar &calendar, QDate month) const;
    void askForPhoto(const QString &path);

    const Program &m_program;
    PictureLoader *m_loader;
    QString m_photoPath; ///< of the sheet that was made last
    LoadedPicture m_photo;
    bool m_isWaiting = false; ///< for the photo
};
