// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/photocommands.h"

#include "calendar/model/calendaredits.h"
#include "calendar/window/celltyping.h"
#include "calendar/window/monthcells.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/photodrop.h"
#include "calendar/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/pictureform.h"
#include "shell/frame/picturepanel.h"
#include "shell/frame/workviews.h"
#include "shell/pictures/picturefolder.h"
#include "shell/program/program.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

PhotoCommands::PhotoCommands(const CalendarDesk &desk, CellTyping &typing, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_typing(typing)
{
    const auto *dropped = new PhotoDrop(desk.page.cells());
    connect(dropped, &PhotoDrop::fileTaken, this, [this](const QString &file) {
        if (mayTake())
            start(file);
    });
    connect(dropped, &PhotoDrop::imageTaken, this, [this](const QImage &image) {
        if (mayTake())
            startImage(image);
    });
}

bool PhotoCommands::hasPhoto() const
{
    return m_desk.calendars.calendar().photos.contains(m_desk.page.month());
}

QString PhotoCommands::whyNoAlbum() const
{
    const QString locked = m_desk.calendars.whyLocked();
    const FunctionEntry *album = m_desk.program.functions.entry(Function::PhotoAlbum);
    return locked.isEmpty() && !(album && album->pictureAlbums) ? CalendarWindowLines::noAlbum() : locked;
}

void PhotoCommands::addCommands(QMenu *calendar)
{
    const auto needsPhoto = [this] {
        const QString locked = m_desk.calendars.whyLocked();
        return locked.isEmpty() && !hasPhoto() ? CalendarWindowLines::noPhoto() : locked;
    };
    Commands &commands = m_desk.commands;
    commands.writing(commands.add(
        calendar, u"mCPhoto"_s, u"&Photo of the Month..."_s, [this] { choose(); },
        [this] { return m_desk.calendars.whyLocked(); }));
    commands.writing(commands.add(
        calendar, u"mCPhotoAlbum"_s, u"Photo from an Alb&um..."_s, [this] { chooseInAlbum(); },
        [this] { return whyNoAlbum(); }));
    commands.writing(commands.add(
        calendar, u"mCCaption"_s, u"Photo C&aption..."_s, [this] { askCaption(); }, needsPhoto));
    commands.writing(commands.add(
        calendar, u"mCPhotoOut"_s, u"Remove P&hoto"_s, [this] { remove(); }, needsPhoto));
}

/// From the household's albums, which are one choice of the panel beside its folders.
void PhotoCommands::chooseInAlbum()
{
    m_typing.finish();
    if (!m_pictures) {
        m_pictures = new PicturePanel(m_desk.program, {.title = u"Photo of the Month"_s,
                                                       .width = PictureUse::anyPath,
                                                       .notStorable = {},
                                                       .nothingToDelete = CalendarWindowLines::noPhoto()});
        m_desk.views.addPanel(m_pictures);
        connect(m_pictures, &PicturePanel::said, this, &PhotoCommands::said);
        connect(m_pictures, &PicturePanel::pictureEntered, this,
                [this](const QString &path) { start(QDir::fromNativeSeparators(path)); });
        connect(m_pictures, &PicturePanel::pictureDeleted, this, [this] {
            m_desk.views.goHome();
            remove();
        });
    }
    m_desk.window.closePreview();
    m_pictures->start(hasPhoto());
    m_desk.views.open(m_pictures);
    m_pictures->setFocus();
    if (!m_pictures->hasAlbums())
        emit said(CalendarWindowLines::noAlbumYet());
}

void PhotoCommands::choose()
{
    m_typing.finish();
    PictureFolder pictures(m_desk.program.folder);
    const auto file =
        m_desk.program.dialogs.chooseFileToOpen(&m_desk.window, u"Photo of the Month"_s, pictures.lastUsed(),
                                                u"Pictures (*.jpg *.jpeg *.png *.bmp *.gif)"_s);
    if (!file)
        return;
    if (!pictures.remember(QFileInfo(*file).absolutePath()))
        emit said(CalendarWindowLines::folderNotKept());
    start(*file);
}

PictureForm &PhotoCommands::form()
{
    if (!m_form) {
        m_form = new PictureForm(m_desk.program, {.name = u"calendarPhotoPanel"_s,
                                                  .title = u"Photo of the Month"_s,
                                                  .take = u"&Take Photo"_s,
                                                  .keepCopy = CalendarWindowLines::keepCopyHint(),
                                                  .notKept = CalendarWindowLines::pictureNotKept(),
                                                  .nameOfNone = u"Calendar"_s});
        m_desk.views.addPanel(m_form);
        connect(m_form, &PictureForm::said, this, &PhotoCommands::said);
        connect(m_form, &PictureForm::entered, this, &PhotoCommands::take);
    }
    return *m_form;
}

/// Asks for the caption, and whether it is to be copied.
void PhotoCommands::start(const QString &file)
{
    if (form().start(file))
        open();
    else
        emit said(CalendarWindowLines::pictureNotTaken());
}

/// The same for one that is no file, which is copied.
void PhotoCommands::startImage(const QImage &image)
{
    if (image.isNull()) {
        emit said(CalendarWindowLines::pictureNotTaken());
        return;
    }
    form().start(image);
    open();
}

void PhotoCommands::open()
{
    m_desk.window.closePreview();
    m_desk.views.open(m_form);
    m_form->setFocus();
}

bool PhotoCommands::mayTake()
{
    m_typing.finish();
    const QString locked = m_desk.calendars.whyLocked();
    if (!locked.isEmpty())
        emit said(locked);
    return locked.isEmpty();
}

void PhotoCommands::take(const QString &path, const QString &caption)
{
    const QDate month = m_desk.page.month();
    const QString title = CalendarWindowLines::photoSet(month);
    if (!m_desk.calendars.change(
            title, CalendarEdits::setPhoto(m_desk.calendars.calendar(), month, {path, caption})))
        return;
    emit done(title);
    if (m_desk.calendars.calendar().look.layout != CalendarLayout::Photo)
        emit said(CalendarWindowLines::noPhotoLayout());
    m_desk.page.setFocus();
}

void PhotoCommands::askCaption()
{
    m_typing.finish();
    const QDate month = m_desk.page.month();
    MonthPhoto photo = m_desk.calendars.calendar().photos.value(month);
    const auto typed =
        m_desk.program.dialogs.input(&m_desk.window, u"Photo Caption"_s, u"Caption"_s, photo.caption);
    if (!typed || typed->trimmed() == photo.caption)
        return;
    photo.caption = typed->trimmed();
    const QString title = CalendarWindowLines::photoSet(month);
    if (m_desk.calendars.change(title, CalendarEdits::setPhoto(m_desk.calendars.calendar(), month, photo)))
        emit done(title);
}

void PhotoCommands::remove()
{
    m_typing.finish();
    const QDate month = m_desk.page.month();
    const QString title = CalendarWindowLines::photoRemoved(month);
    if (m_desk.calendars.change(title, CalendarEdits::removePhoto(m_desk.calendars.calendar(), month)))
        emit done(title);
}
