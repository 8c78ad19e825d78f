// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Camera;

/// The pictures of each part of the program, taken one after the other as a person comes to them.
namespace Albums {

void mainMenu(const Camera &camera);
void password(const Camera &camera);
void manual(const Camera &camera);
void addressBook(const Camera &camera);
void addressPages(const Camera &camera);
void viewer(const Camera &camera);
void viewerPanels(const Camera &camera);
void planner(const Camera &camera);
void budget(const Camera &camera);
void cars(const Camera &camera);
void carHistories(const Camera &camera);
void weight(const Camera &camera);
void weightPages(const Camera &camera);
void weightGraph(const Camera &camera);
void toDo(const Camera &camera);
void keeper(const Camera &camera);
void journal(const Camera &camera);
void calendar(const Camera &camera);
void calendarPages(const Camera &camera);
void photos(const Camera &camera);
void backup(const Camera &camera);
void charts(const Camera &camera);

} // namespace Albums
