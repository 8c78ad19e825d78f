#pragma once

#include "addressbook/model/viewerpages.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

/// How the viewer's list is printed.
class ListOptionsPanel final : public QWidget
{
    Q_OBJECT
public:
    explicit ListOptionsPanel(QWidget *parent = nullptr);

    ViewerPages::ListOptions options() const;
    /// Tells what the list would hold now.
    void describe(const AddressViewer &viewer);
    void focusFirst();

signals:
    void printRequested();
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *m_content;
    QCheckBox *m_telephones;
    QCheckBox *m_asOf;
    QCheckBox *m_gridLines;
    QRadioButton *m_oneColumn;
    QRadioButton *m_twoColumns;
    QPushButton *m_print;
};
