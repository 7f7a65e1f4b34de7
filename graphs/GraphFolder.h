// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

// The folder of the pupils' graph files: "Lumbridle/Graphs" in the user's documents folder,
// made when first needed. Tests and the screenshot tool point it elsewhere.
namespace GraphFolder {
QString path();
void setPath(const QString &folder);
bool ensure();
// The names of the graph files in the folder, without the extension, in a pupil's order.
QStringList names();
QString fileFor(const QString &name);
bool exists(const QString &name);
} // namespace GraphFolder
