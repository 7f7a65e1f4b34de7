// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Graph.h"

#include "shell/Printing.h"

// The printed graph: a landscape page with the chart large on the left and its numbers in a
// table beside it, under the credit line and the name of the graph file.
namespace GraphPaper {
PrintDocument document(const Graph &graph, const QString &fileName);
} // namespace GraphPaper
