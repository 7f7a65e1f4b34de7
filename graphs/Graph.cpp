// SPDX-License-Identifier: GPL-3.0-or-later
#include "Graph.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

// The rules' messages go through the translations like every text a pupil reads.
QString text(const char *source)
{
    return QCoreApplication::translate("GraphRules", source);
}

// A single-precision value written as its shortest decimal, so 0.1 is saved as "0.1" and not
// as the double nearest the float.
double shortestDecimal(float value)
{
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return QByteArray(buffer, int(result.ptr - buffer)).toDouble();
}

bool readFloat(WriteReader &in, float &out)
{
    double value = 0;
    if (!in.readNumber(value))
        return false;
    // No larger than a number box can hold, so what is read can be shown and saved again.
    if (std::fabs(value) >= Graph::Largest)
        return false;
    out = float(value);
    return true;
}

bool readFlag(WriteReader &in, bool &out)
{
    qint16 value = 0;
    if (!in.readInt16(value))
        return false;
    out = value != 0;
    return value == 0 || value == 1;
}

} // namespace

QString Graph::typeName(int type)
{
    switch (type) {
    case LineGraph:
        return text("Line Graph");
    case BarChart:
        return text("Bar Chart");
    default:
        return text("Pie Chart");
    }
}

QString GraphRules::formatValue(double value)
{
    // Rounded half away from zero at one decimal, as pupils round.
    const double tenths = std::round(value * 10.0);
    if (tenths == 0)
        return QStringLiteral("0");
    if (std::fmod(tenths, 10.0) == 0)
        return QString::number(tenths / 10.0, 'f', 0);
    return QString::number(tenths / 10.0, 'f', 1);
}

bool GraphRules::isNumberText(const QString &text, bool allowPoint, bool allowMinus)
{
    bool point = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c >= u'0' && c <= u'9')
            continue;
        if (c == u'-' && allowMinus && i == 0)
            continue;
        if (c == u'.' && allowPoint && !point) {
            point = true;
            continue;
        }
        return false;
    }
    return true;
}

std::optional<double> GraphRules::parseValue(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (!isNumberText(trimmed))
        return std::nullopt;
    if (trimmed.isEmpty() || trimmed == u"-" || trimmed == u"." || trimmed == u"-.")
        return 0.0;
    bool ok = false;
    const double value = trimmed.toDouble(&ok);
    if (!ok || std::fabs(value) > double(std::numeric_limits<float>::max()))
        return std::nullopt;
    return value;
}

std::optional<GraphMessage> GraphRules::scaleProblem(double minimum, double maximum)
{
    if (maximum > minimum)
        return std::nullopt;
    return GraphMessage{text("Scale Error"), text("Minimum must be smaller than Maximum.")};
}

qint16 GraphRules::fixDivisions(qint64 divisions)
{
    return qint16(std::clamp<qint64>(divisions, 1, Graph::MaxDivisions));
}

std::optional<GraphMessage> GraphRules::dataRangeProblem(const Graph &graph)
{
    if (graph.type == Graph::PieChart)
        return std::nullopt;
    for (const GraphPoint &point : graph.points) {
        if (point.value < graph.yMin)
            return GraphMessage{text("Data Range Error"), text("Minimum Data Value =") +
                                                              formatValue(point.value) +
                                                              text("\nAdjust Minimum on Scale")};
        if (point.value > graph.yMax)
            return GraphMessage{text("Data Range Error"), text("Maximum Data Value =") +
                                                              formatValue(point.value) +
                                                              text("\nAdjust Maximum on Scale")};
    }
    return std::nullopt;
}

std::optional<GraphMessage> GraphRules::pieProblem(const Graph &graph)
{
    if (graph.type != Graph::PieChart)
        return std::nullopt;
    for (const GraphPoint &point : graph.points)
        if (point.value < 0)
            return GraphMessage{text("Data Range Error"),
                                text("A pie chart cannot show a part less than zero: ") +
                                    formatValue(point.value) +
                                    text("\nUse a line graph or a bar chart instead.")};
    return std::nullopt;
}

QString GraphRules::cleanName(const QString &typed)
{
    QString name = typed.simplified();
    if (name.endsWith(QLatin1String(Extension), Qt::CaseInsensitive))
        name.chop(int(qstrlen(Extension)));
    name = name.trimmed();
    static const QString forbidden = QStringLiteral("/\\:*?\"<>|");
    for (const QChar c : std::as_const(name))
        if (forbidden.contains(c) || c.category() == QChar::Other_Control)
            return {};
    if (name.isEmpty() || name.startsWith(u'.') || name.size() > 40 ||
        name.compare(QLatin1String(NewName), Qt::CaseInsensitive) == 0)
        return {};
    return name;
}

QByteArray GraphFile::format(const Graph &graph)
{
    WriteWriter out;
    out.number(qint64(graph.type)).endLine();
    out.text(graph.title).endLine();
    out.text(graph.xTitle).endLine();
    out.text(graph.yTitle).endLine();
    out.number(qint64(graph.grid ? 1 : 0))
        .number(shortestDecimal(graph.yMin))
        .number(shortestDecimal(graph.yMax))
        .number(qint64(graph.divisions))
        .endLine();
    out.number(qint64(graph.points.size())).endLine();
    for (const GraphPoint &point : graph.points)
        out.text(point.label)
            .number(shortestDecimal(point.value))
            .number(qint64(point.colour))
            .endLine();
    out.number(qint64(graph.piePercent ? 1 : 0)).endLine();
    return out.data();
}

std::optional<Graph> GraphFile::parse(const QByteArray &content, FileError *error)
{
    WriteReader in;
    Graph graph;
    auto fail = [&](int line, const QString &problem) -> std::optional<Graph> {
        if (error)
            *error = in.failed() ? in.error() : FileError{{}, line, 0, problem};
        return std::nullopt;
    };
    if (!in.parse(content))
        return fail(0, {});
    qint16 count = 0;
    if (!in.beginLine(1) || !in.readInt16(graph.type))
        return fail(1, {});
    if (graph.type < 0 || graph.type >= Graph::Types)
        return fail(1, QStringLiteral("the kind of graph is not 0, 1 or 2"));
    if (!in.beginLine(1) || !in.readText(graph.title) || !in.beginLine(1) ||
        !in.readText(graph.xTitle) || !in.beginLine(1) || !in.readText(graph.yTitle))
        return fail(2, {});
    if (!in.beginLine(4) || !readFlag(in, graph.grid) || !readFloat(in, graph.yMin) ||
        !readFloat(in, graph.yMax) || !in.readInt16(graph.divisions))
        return fail(5, QStringLiteral("the scale line is damaged"));
    // A pie chart has no scale, so whatever its scale boxes held was saved unchecked.
    if (graph.type == Graph::PieChart)
        graph.divisions = GraphRules::fixDivisions(graph.divisions);
    else if (GraphRules::scaleProblem(graph.yMin, graph.yMax) || graph.divisions < 1 ||
             graph.divisions > Graph::MaxDivisions)
        return fail(5, QStringLiteral("the scale is not a usable one"));
    if (!in.beginLine(1) || !in.readInt16(count))
        return fail(6, {});
    if (count < 0 || count > Graph::MaxPoints)
        return fail(6, QStringLiteral("the point count %1 is outside 0 to %2")
                           .arg(count)
                           .arg(Graph::MaxPoints));
    for (int i = 0; i < count; ++i) {
        GraphPoint point;
        if (!in.beginLine(3) || !in.readText(point.label) || !readFloat(in, point.value) ||
            !in.readInt16(point.colour))
            return fail(7 + i, QStringLiteral("a point is damaged"));
        if (point.colour < 0 || point.colour >= Graph::Colours)
            return fail(7 + i, QStringLiteral("a colour is not one of the twelve"));
        graph.points.append(point);
    }
    if (!in.beginLine(1) || !readFlag(in, graph.piePercent) || !in.expectEnd())
        return fail(7 + count, QStringLiteral("the last line is damaged"));
    return graph;
}

std::optional<Graph> GraphFile::read(const QString &path, FileError *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = FileError{QFileInfo(path).fileName(), 0, 0,
                               QStringLiteral("the file cannot be opened")};
        return std::nullopt;
    }
    // A graph file is a few hundred bytes; anything far larger is not one.
    if (file.size() > 64 * 1024) {
        if (error)
            *error = FileError{QFileInfo(path).fileName(), 0, 0,
                               QStringLiteral("the file is far too large")};
        return std::nullopt;
    }
    auto graph = parse(file.readAll(), error);
    if (!graph && error)
        error->file = QFileInfo(path).fileName();
    return graph;
}

bool GraphFile::write(const QString &path, const Graph &graph, FileError *error)
{
    return SaveFileAtomically(path, format(graph), error);
}
