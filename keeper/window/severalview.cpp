// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/severalview.h"

#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/tagbox.h"
#include "shell/controls/titleline.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int tagWidth = 260;
constexpr qsizetype titlesNamed = 12;
} // namespace

SeveralView::SeveralView(QWidget *parent)
    : TitledView(u"several"_s, parent)
    , m_tag(nullptr)
    , m_titles(nullptr)
{
    auto *content = new QWidget;
    m_tag = new TagBox(u"severalTag"_s, content);
    m_titles = named(makeQuietLabel({}, content), u"severalTitles"_s);
    m_titles->setWordWrap(true);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    rows->addWidget(m_titles);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    m_tag->setFixedWidth(boxWidth({}, tagWidth));
    QPushButton *give = makeButton(u"giveTag"_s, u"&Add Tag"_s, content);
    QPushButton *take = makeButton(u"takeTag"_s, u"&Take Tag Away"_s, content);
    row->addWidget(m_tag);
    row->addWidget(give);
    row->addWidget(take);
    row->addStretch(1);
    rows->addWidget(makeFieldLabel(KeeperWindowLines::tagForAll(), m_tag, content));
    rows->addLayout(row);
    rows->addStretch(1);
    addContent(content, 1);
    setFocusProxy(m_tag);
    connect(give, &QPushButton::clicked, this, [this] { run(&SeveralView::tagGiven); });
    connect(take, &QPushButton::clicked, this, [this] { run(&SeveralView::tagTaken); });
    connect(m_tag, &QLineEdit::returnPressed, this, [this] { run(&SeveralView::tagGiven); });
}

void SeveralView::show(const QStringList &titles, const QStringList &tags)
{
    titleLine().setTitle(KeeperWindowLines::chosen(titles.size()));
    QString names = titles.mid(0, titlesNamed).join(u", "_s);
    if (titles.size() > titlesNamed)
        names += KeeperWindowLines::andMore(titles.size() - titlesNamed);
    m_titles->setText(names);
    m_tag->clear();
    m_tag->setOffered(tags);
    follow(false);
}

void SeveralView::startTags()
{
    m_tag->setFocus();
}

void SeveralView::run(void (SeveralView::*wanted)(const QString &))
{
    const QString tag = m_tag->text().remove(u',').trimmed();
    if (tag.isEmpty()) {
        emit said(KeeperWindowLines::tagMissing());
        m_tag->setFocus();
        return;
    }
    (this->*wanted)(tag);
}
