#include "addressbook/viewer/listoptionspanel.h"

#include "addressbook/model/viewerlines.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

ListOptionsPanel::ListOptionsPanel(QWidget *parent)
    : QWidget(parent)
    , m_content(named(makeQuietLabel({}, this), u"listContent"_s))
    , m_telephones(named(new QCheckBox(u"Print Telephone Number Also"_s, this), u"printTelephones"_s))
    , m_asOf(named(new QCheckBox(u"Print 'As of' date on each page"_s, this), u"printAsOf"_s))
    , m_gridLines(named(new QCheckBox(u"Print Grid Lines on each page"_s, this), u"printGridLines"_s))
    , m_oneColumn(named(new QRadioButton(u"One Column Output"_s, this), u"oneColumn"_s))
    , m_twoColumns(named(new QRadioButton(u"Two Column Output"_s, this), u"twoColumns"_s))
    , m_print(makeButton(u"printList"_s, u"&Print List"_s, this, ButtonKind::Main))
{
    auto *columns = new QButtonGroup(this);
    columns->addButton(m_oneColumn);
    columns->addButton(m_twoColumns);
    m_oneColumn->setChecked(true);
    QPushButton *back = makeButton(u"leavePrintOptions"_s, u"&Back to the Grid"_s, this);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(24, 20, 24, 18);
    column->setSpacing(10);
    column->addWidget(makeTitle(u"Print Options"_s, this));
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
    column->addWidget(makeScrolling(content, u"listOptionsScroll"_s, this), 1);
    column->addWidget(makeLine(this));
    auto *foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(back);
    foot->addWidget(m_print);
    column->addLayout(foot);
    connect(m_print, &QPushButton::clicked, this, &ListOptionsPanel::printRequested);
    connect(back, &QPushButton::clicked, this, &ListOptionsPanel::left);
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

void ListOptionsPanel::focusFirst()
{
    m_print->setFocus();
}

void ListOptionsPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        emit left();
    else
        QWidget::keyPressEvent(event);
}
