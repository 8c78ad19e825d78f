// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/exportbox.h"

#include "budget/model/papermessages.h"
#include "budget/model/sheetlines.h"
#include "shell/controls/controls.h"
#include "shell/core/shellmessages.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "storage/saving.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int textWidth = 512;

QLabel *makeText(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth); // else its height is asked for at another width
    return label;
}

} // namespace

ExportBox::ExportBox(Program &program, int year, const QByteArray &content, QWidget *parent)
    : QDialog(parent)
    , m_program(program)
    , m_content(content)
    , m_folderLabel(named(makeText({}, this), u"exportWhere"_s))
    , m_folder(named(new QLineEdit(QDir::toNativeSeparators(program.folder.path()), this), u"exportFolder"_s))
    , m_name(named(new QLineEdit(SheetLines::exportName(year, false), this), u"exportName"_s))
{
    setObjectName(u"exportBox"_s);
    setWindowTitle(BudgetPaper::exportTitle());
    setPalette(Theme::of(this).panelPalette());
    m_folder->setAccessibleName(u"Folder"_s);
    m_name->setAccessibleName(u"File name"_s);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 20, 24, 20);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->setSpacing(8);
    rows->addWidget(m_folderLabel);
    rows->addLayout(makeFolderRow());
    rows->addSpacing(8);
    rows->addWidget(makeText(BudgetPaper::exportName(), this));
    rows->addWidget(m_name);
    rows->addSpacing(8);
    rows->addWidget(makeText(BudgetPaper::exportWithoutTotals(), this));
    rows->addWidget(makeText(BudgetPaper::exportReplaces(), this));
    rows->addSpacing(8);
    rows->addLayout(makeFoot());
    connect(m_folder, &QLineEdit::textChanged, this, &ExportBox::folderChanged);
    folderChanged();
    m_name->setFocus();
    m_name->selectAll();
}

QHBoxLayout *ExportBox::makeFolderRow()
{
    QPushButton *browse = makeButton(u"exportBrowse"_s, u"&Other Folder..."_s, this);
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &ExportBox::chooseFolder);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_folder, 1);
    row->addWidget(browse);
    return row;
}

QHBoxLayout *ExportBox::makeFoot()
{
    QPushButton *ok = makeButton(u"exportOk"_s, u"OK"_s, this, ButtonKind::Main);
    QPushButton *cancel = makeButton(u"exportCancel"_s, u"Cancel"_s, this);
    for (QPushButton *button : {ok, cancel})
        button->setMinimumWidth(104);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &ExportBox::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *foot = new QHBoxLayout;
    foot->setSpacing(8);
    foot->addStretch(1);
    foot->addWidget(ok);
    foot->addWidget(cancel);
    return foot;
}

bool ExportBox::isFolderChosen() const
{
    const QString folder = QDir::cleanPath(QDir::fromNativeSeparators(m_folder->text().trimmed()));
    return folder != QDir::cleanPath(m_program.folder.path());
}

void ExportBox::chooseFolder()
{
    const auto folder = m_program.dialogs.chooseFolder(this, BudgetPaper::exportTitle(), m_folder->text());
    if (folder && !folder->isEmpty())
        m_folder->setText(QDir::toNativeSeparators(*folder));
}

/// The name's extension tells a chosen folder from the program's, and so does the line above the box.
void ExportBox::folderChanged()
{
    const bool isChosen = isFolderChosen();
    m_folderLabel->setText(isChosen ? BudgetPaper::exportElsewhere() : BudgetPaper::exportFolder());
    if (const auto name = SheetLines::exportFile(m_name->text(), isChosen))
        m_name->setText(*name);
}

void ExportBox::refuse(const Message &reason, QLineEdit *box)
{
    m_program.dialogs.ask(this, reason);
    box->setFocus();
    box->selectAll();
}

void ExportBox::accept()
{
    const bool isChosen = isFolderChosen();
    const auto name = SheetLines::exportFile(m_name->text(), isChosen);
    if (!name)
        return refuse(BudgetPaper::exportNameWrong(), m_name);
    const QString path = QDir::fromNativeSeparators(m_folder->text().trimmed());
    if (path.isEmpty() || QDir::isRelativePath(path) || !QFileInfo(path).isDir())
        return refuse(ShellMessages::driveUnavailable(), m_folder);
    const DataFolder chosen(path);
    if (!Saving::replaceFile(isChosen ? chosen : m_program.folder, *name, m_content))
        return refuse(ShellMessages::deviceUnavailable(), m_folder);
    m_program.dialogs.ask(this, BudgetPaper::exported());
    QDialog::accept();
}
