// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/pictureform.h"

#include "shell/controls/pastefilter.h"
#include "shell/pictures/keptpictures.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturelines.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QSize most(1600, 1200);
constexpr int captionWidth = 480;
} // namespace

PictureForm::PictureForm(const Program &program, PictureFormUse use, QWidget *parent)
    : TaskPanel(use.name, use.title, parent)
    , m_program(program)
    , m_use(std::move(use))
    , m_frame(new PictureFrame(this))
    , m_caption(named(new QLineEdit(this), u"pictureCaption"_s))
    , m_keep(named(new QCheckBox(m_use.keepCopy, this), u"keepCopy"_s))
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(10);
    rows->addWidget(m_frame, 1);
    new PasteFilter(m_caption, Characters::All);
    m_caption->setMaximumWidth(captionWidth);
    rows->addLayout(labelled(u"Caption"_s, m_caption));
    rows->addWidget(m_keep);
    setWork(content);
    setFocusProxy(m_caption);
    QPushButton *insert = addButton(u"insertPicture"_s, m_use.take, ButtonKind::Main);
    setLeaveButton(u"pictureClose"_s, u"C&lose"_s);
    connect(insert, &QPushButton::clicked, this, &PictureForm::enter);
    connect(m_caption, &QLineEdit::returnPressed, this, &PictureForm::enter);
}

bool PictureForm::start(const QString &file)
{
    const QImage picture = PictureFile::read(file, most);
    if (picture.isNull())
        return false;
    m_file = file;
    show(picture, true);
    return true;
}

void PictureForm::start(const QImage &picture)
{
    m_file.clear();
    show(picture, false);
}

void PictureForm::show(const QImage &picture, bool isFile)
{
    m_image = isFile ? QImage() : picture;
    m_frame->setImage(picture);
    m_caption->clear();
    m_keep->setChecked(true);
    setUnavailable(m_keep, isFile ? QString() : PictureLines::alwaysKept());
}

void PictureForm::enter()
{
    QString path = KeptPictures::stored(m_program.folder, m_file);
    if (m_file.isEmpty())
        path = KeptPictures::keep(m_program.folder, PictureFile::asPhotograph(m_image),
                                  m_isNamed && !m_caption->text().isEmpty() ? m_caption->text()
                                                                            : m_use.nameOfNone);
    else if (m_keep->isChecked())
        path = KeptPictures::keepCopy(m_program.folder, m_file);
    if (path.isEmpty()) {
        emit said(m_use.notKept);
        return;
    }
    const QString caption = m_caption->text().trimmed();
    leave();
    emit entered(path, caption);
}

void PictureForm::forget()
{
    m_file.clear();
    m_image = {};
    m_frame->clear();
    m_caption->clear();
}
