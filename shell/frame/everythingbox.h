// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class SearchBox;
class SearchHits;
class SearchModel;
struct Program;

/// The box of the search over everything. The hits stand below it, over the window, as one types: Up and Down
/// choose among them, Enter or a click opens, Esc leaves.
class EverythingBox final : public QWidget
{
    Q_OBJECT
public:
    EverythingBox(Program &program, QWidget *parent);

    /// Puts the cursor into the box. It goes back to where it was when the search is left.
    void start();

signals:
    /// Something was opened, or the search was given up.
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    bool takeKey(int key);
    void look(const QString &text);
    void showHits();
    void placeHits();
    void tellCurrent();
    void open(int row);
    void leave();

    Program &m_program;
    SearchBox *m_box;
    SearchModel *m_model;
    SearchHits *m_hits;
    QPointer<QWidget> m_focusBefore;
};
