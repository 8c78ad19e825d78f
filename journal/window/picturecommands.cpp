// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/picturecommands.h"

#include "journal/model/journal.h"
#include "journal/window/daypage.h"
#include "journal/window/journaltext.h"
#include "journal/window/openday.h"
#include "journal/window/pagepictures.h"
#include "journal/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/pictureform.h"
#include "shell/frame/workviews.h"
#include "shell/pictures/picturefolder.h"
#include "shell/program/program.h"

#include <QFileInfo>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

PictureCommands::PictureCommands(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
{
    connect(&m_desk.page.text(), &JournalText::pictureGiven, this,
            [this](const QMimeData *data) { take(*data); });
    connect(&m_desk.page.text(), &JournalText::pictureAtCursorChanged, &m_desk.commands, &Commands::refresh);
}

QString PictureCommands::whyLocked() const
{
    const QString none = m_desk.whyNone();
    return none.isEmpty() ? m_desk.day.whyLocked() : none;
}

void PictureCommands::addCommands(QMenu *edit)
{
    QAction *insert = m_desk.commands.writing(m_desk.commands.add(
        edit, u"mEPicture"_s, u"Insert &Picture..."_s, [this] { choose(); }, [this] { return whyLocked(); },
        Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    m_desk.commands.tool(insert, "picture"_L1, u"Picture"_s);
    m_desk.commands.writing(m_desk.commands.add(
        edit, u"mECaption"_s, u"Picture &Caption..."_s, [this] { askCaption(); },
        [this] {
            if (QString why = whyLocked(); !why.isEmpty())
                return why;
            return m_desk.page.text().pictureAtCursor() > 0 ? QString() : JournalWindowLines::noPictureHere();
        }));
}

void PictureCommands::choose()
{
    PictureFolder pictures(m_desk.program.folder);
    const QString filter = u"Pictures (*.jpg *.jpeg *.png *.bmp *.gif)"_s;
    const auto file = m_desk.program.dialogs.chooseFileToOpen(&m_desk.window, u"Insert Picture"_s,
                                                              pictures.lastUsed(), filter);
    if (!file || !whyLocked().isEmpty())
        return;
    if (!pictures.remember(QFileInfo(*file).absolutePath()))
        emit said(JournalWindowLines::folderNotKept());
    openFile(*file);
}

/// What was dropped or pasted: a file, else the picture itself, else the words.
void PictureCommands::take(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    if (const auto file = std::ranges::find_if(urls, &QUrl::isLocalFile); file != urls.end()) {
        openFile(file->toLocalFile());
        if (std::ranges::count_if(urls, &QUrl::isLocalFile) > 1)
            emit said(JournalWindowLines::onePictureAtATime());
        return;
    }
    if (data.hasImage()) {
        form().start(qvariant_cast<QImage>(data.imageData()));
        bring();
    } else if (data.hasText()) {
        m_desk.page.text().insertPlainText(data.text());
    }
}

void PictureCommands::openFile(const QString &file)
{
    if (form().start(file))
        bring();
    else
        emit said(JournalWindowLines::pictureNotTaken());
}

PictureForm &PictureCommands::form()
{
    if (!m_form) {
        m_form = new PictureForm(m_desk.program, {.name = u"journalPicturePanel"_s,
                                                  .title = u"Insert Picture"_s,
                                                  .keepCopy = JournalWindowLines::keepCopyHint(),
                                                  .notKept = JournalWindowLines::pictureNotKept(),
                                                  .nameOfNone = u"Journal"_s});
        m_desk.views.addPanel(m_form);
        connect(m_form, &PictureForm::said, this, &PictureCommands::said);
        connect(m_form, &PictureForm::entered, this, [this](const QString &path, const QString &caption) {
            m_desk.day.addPicture({path, caption});
            m_desk.page.text().setFocus();
        });
    }
    m_form->setNamedAfterCaption(!m_desk.journal.seal().isOpen());
    return *m_form;
}

void PictureCommands::bring()
{
    m_desk.window.closePreview();
    m_desk.views.open(m_form);
    m_form->setFocus();
}

void PictureCommands::askCaption()
{
    const int number = m_desk.page.text().pictureAtCursor();
    const auto typed = m_desk.program.dialogs.input(&m_desk.window, u"Picture Caption"_s, u"Caption"_s,
                                                    m_desk.page.pictures().caption(number));
    if (typed)
        m_desk.day.setCaption(number, typed->trimmed());
}

void PictureCommands::forget()
{
    if (m_form)
        m_form->forget();
}
