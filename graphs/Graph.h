// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/WriteFormat.h"

#include <optional>
#include <QList>
#include <QString>

// One labelled value of a graph and the colour (an index of the twelve swatches) it is drawn in.
struct GraphPoint {
    QString label;
    float value = 0;
    qint16 colour = 0;
    bool operator==(const GraphPoint &) const = default;
};

// The graph being built: its kind, titles, value scale and up to twelve points.
struct Graph {
    enum Type : qint16 { LineGraph = 0, BarChart = 1, PieChart = 2 };
    static constexpr int Types = 3;
    static constexpr int MaxPoints = 12;
    static constexpr int Colours = 12;
    static constexpr qint16 MaxDivisions = 50;
    static constexpr double Largest = 1e9; // nine digits, as many as a number box takes

    qint16 type = LineGraph;
    QString title = QStringLiteral("Graph/Chart Title");
    QString xTitle = QStringLiteral("Horizontal Title");
    QString yTitle = QStringLiteral("Vertical Title");
    bool grid = false;
    float yMin = 0;
    float yMax = 10;
    qint16 divisions = 10;
    QList<GraphPoint> points;
    bool piePercent = false;

    bool operator==(const Graph &) const = default;

    // The caption of each kind, as the format step lists them.
    static QString typeName(int type);
    // A new point's colour: the next swatch along, so neighbouring bars and slices differ.
    static qint16 defaultColour(int row) { return qint16(row % Colours); }
};

// A message box's title and text, for the checks below.
struct GraphMessage {
    QString title;
    QString text;
};

namespace GraphRules {
inline constexpr auto NewName = "NEW";
inline constexpr auto Extension = ".tsg";

// "0.#": whole numbers without a decimal point, others rounded to one decimal.
QString formatValue(double value);
// A number box's text as a value: digits, one "." and a leading "-"; an empty or bare
// "-" / "." box counts as 0. Nothing else is a number.
std::optional<double> parseValue(const QString &text);
// Whether a typed text may stand in a number box (partial numbers like "-" included).
bool isNumberText(const QString &text, bool allowPoint = true, bool allowMinus = true);

// The scale step: an error when the minimum is not below the maximum.
std::optional<GraphMessage> scaleProblem(double minimum, double maximum);
// Divisions below 1 become 1, above the most the axis can show become that most.
qint16 fixDivisions(qint64 divisions);
// Before drawing: the first value outside the scale, if any. Pie charts have no scale.
std::optional<GraphMessage> dataRangeProblem(const Graph &graph);
// Pie charts cannot show negative parts.
std::optional<GraphMessage> pieProblem(const Graph &graph);

// A name the pupil typed, made into a file name, or empty when it cannot be one.
QString cleanName(const QString &typed);
} // namespace GraphRules

// The graph file: eight groups of lines in the comma-separated "write" form.
namespace GraphFile {
QByteArray format(const Graph &graph);
std::optional<Graph> parse(const QByteArray &content, FileError *error = nullptr);
std::optional<Graph> read(const QString &path, FileError *error = nullptr);
bool write(const QString &path, const Graph &graph, FileError *error = nullptr);
} // namespace GraphFile
