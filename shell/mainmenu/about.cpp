// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/about.h"

#include "shell/controls/controls.h"
#include "shell/look/icons.h"
#include "shell/look/theme.h"
#include "storage/datafolder.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

#include <sodium.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int iconSide = 72;
constexpr int textWidth = 380;

QString version()
{
    const QString given = QCoreApplication::applicationVersion();
    return u"Version "_s + (given.isEmpty() ? u"1.0"_s : given);
}

QString purpose()
{
    return u"Keeps a household in order: people and their birthdays, appointments, money, the car, weight, "
           "pictures and passwords, in small files of your own on this computer."_s;
}

QString licence()
{
    return u"Free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It "
           "comes without any warranty."_s;
}

QString libraries()
{
    return u"Built with Qt "_s + QString::fromLatin1(qVersion()) + u" and libsodium "_s +
           QString::fromLatin1(sodium_version_string()) + u'.';
}

QString readOnlyWords(const DataFolder &folder)
{
    return u"For reading only. "_s + folder.whyReadOnly() + u'.';
}

/// All lines have the same width, or the box is too low for those that are broken.
QLabel *fitted(QLabel *paragraph)
{
    paragraph->setWordWrap(true);
    paragraph->setFixedWidth(textWidth);
    return paragraph;
}

} // namespace

About1::About1(const DataFolder &folder, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
{
    named(this, u"About1"_s);
    setWindowTitle(u"About Quillery"_s);
    setModal(true);

    auto *sign = new QLabel(this);
    sign->setPixmap(Icons::applicationIcon().pixmap(QSize(iconSide, iconSide), devicePixelRatioF()));
    sign->setAlignment(Qt::AlignTop);
    auto *top = new QHBoxLayout;
    top->setSpacing(20);
    top->addWidget(sign, 0, Qt::AlignTop);
    top->addLayout(makeWords(folder), 1);
    QPushButton *ok = makeOk();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 20);
    column->setSpacing(12);
    column->addLayout(top);
    column->addWidget(ok, 0, Qt::AlignRight);
    column->setSizeConstraint(QLayout::SetFixedSize);
    ok->setFocus();
}

QLayout *About1::makeWords(const DataFolder &folder)
{
    auto *words = new QVBoxLayout;
    words->setSpacing(4);
    words->addWidget(makeTitle(u"Quillery"_s, this));
    words->addWidget(named(makeQuietLabel(version(), this), u"versionLabel"_s));
    words->addSpacing(12);
    for (const QString &text : {purpose(), licence(), libraries()}) {
        words->addWidget(fitted(new QLabel(text, this)));
        words->addSpacing(8);
    }
    words->addLayout(labelled(u"The household's files are in this folder"_s, makeFolderBox(folder)));
    if (folder.isReadOnly())
        words->addWidget(fitted(named(makeQuietLabel(readOnlyWords(folder), this), u"readOnlyLabel"_s)));
    words->addSpacing(8);
    return words;
}

/// A path can be too long for its line, and it can be copied.
QLineEdit *About1::makeFolderBox(const DataFolder &folder)
{
    auto *box = named(new QLineEdit(QDir::toNativeSeparators(folder.path()), this), u"folderBox"_s);
    box->setReadOnly(true);
    box->setFixedWidth(textWidth);
    box->setCursorPosition(0);
    return box;
}

/// The button, and the same as an entry of the context menu.
QPushButton *About1::makeOk()
{
    QPushButton *ok = makeButton(u"Command1"_s, u"&OK"_s, this, ButtonKind::Main);
    ok->setAccessibleName(u"OK"_s);
    ok->setDefault(true);
    ok->setMinimumWidth(104);
    QAction *close = makeAction(u"mOOK"_s, u"&OK"_s, this);
    addAction(close);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(close, &QAction::triggered, this, &QDialog::accept);
    return ok;
}

void About1::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::of(this).panel);
}
