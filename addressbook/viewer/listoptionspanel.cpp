// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/listoptionspanel.h"

#include "addressbook/model/viewerlines.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

ListOptionsPanel::ListOptionsPanel(QWidget *parent)
    : TaskPanel(u"listOptions"_s, u"Print Options"_s, parent)
    , m_content(named(makeQuietLabel({}, this), u"listContent"_s))
    , m_telephones(named(new QCheckBox(u"Print Telephone Number Also"_s, this), u"printTelephones"_s))
    , m_asOf(named(new QCheckBox(u"Print 'As of' date on each page"_s, this), u"printAsOf"_s))
    , m_gridLines(named(new QCheckBox(u"Print Grid Lines on each page"_s, this), u"printGridLines"_s))
    , m_oneColumn(named(new QRadioButton(u"One Column Output"_s, this), u"oneColumn"_s))
    , m_twoColumns(named(new QRadioButton(u"Two Column Output"_s, this), u"twoColumns"_s))
{
    m_oneColumn->setChecked(true);
    m_content->setFont(TypeScale::body());
    m_content->setWordWrap(true);
    auto *content = new QWidget;
    auto *options = new QVBoxLayout(content);
    options->setContentsMargins(0, 0, 0, 0);
    options->setSpacing(10);
    options->addWidget(m_content);
    options->addSpacing(8);
    for (QWidget *option : std::initializer_list<QWidget *>{m_telephones, m_asOf, m_gridLines})
        options->addWidget(option);
    options->addSpacing(8);
    options->addWidget(m_oneColumn);
    options->addWidget(m_twoColumns);
    options->addStretch(1);
    setContent(content);
    setLeaveButton(u"leavePrintOptions"_s, u"&Back to the Grid"_s);
    m_print = addButton(u"printList"_s, u"&Print"_s, ButtonKind::Main);
    setFocusProxy(m_print);
    connect(m_print, &QPushButton::clicked, this, &ListOptionsPanel::printRequested);
}

ViewerPages::ListOptions ListOptionsPanel::options() const
{
    return {m_telephones->isChecked(), m_asOf->isChecked(), m_twoColumns->isChecked(),
            m_gridLines->isChecked()};
}

void ListOptionsPanel::describe(const AddressViewer &viewer)
{
    m_content->setText(ViewerLines::listHolds(viewer.count(), ViewerPages::choice(viewer.information()),
                                              viewer.information() != Information::Pictures));
    setUnavailable(m_print, viewer.count() == 0 ? ViewerLines::nothingShown() : QString());
}
