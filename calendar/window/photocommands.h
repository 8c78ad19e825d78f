// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/calendardesk.h"

#include <QObject>

class CellTyping;
class PictureForm;
class PicturePanel;
class QImage;
class QMenu;

/// The photo of the month that is shown: chosen, kept with the household's pictures, removed.
class PhotoCommands final : public QObject
{
    Q_OBJECT
public:
    PhotoCommands(const CalendarDesk &desk, CellTyping &typing, QObject *parent);

    void addCommands(QMenu *calendar);

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);

private:
    bool hasPhoto() const;
    QString whyNoAlbum() const;
    void choose();
    void chooseInAlbum();
    void start(const QString &file);
    void startImage(const QImage &image);
    PictureForm &form();
    /// What was dropped or pasted; false where nothing may be changed, which is told.
    bool mayTake();
    void open();
    void take(const QString &path, const QString &caption);
    void askCaption();
    void remove();

    CalendarDesk m_desk;
    CellTyping &m_typing;
    PicturePanel *m_pictures = nullptr;
    PictureForm *m_form = nullptr;
};
