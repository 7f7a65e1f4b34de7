// SPDX-License-Identifier: GPL-3.0-or-later
#include "WorldCountries.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtMath>

namespace WorldCountries {

namespace {
QString translate(const char *text)
{
    return QCoreApplication::translate("WorldCountries", text);
}
} // namespace

QuizTable::Layout Layout()
{
    return {.fileName = QString::fromLatin1(FileName),
            .records = Records,
            .fields = Fields,
            .numberFields = {Region, MapX, MapY},
            .requiredFields = {Name, Capital},
            .ranges = {{Region, 1, Regions}}};
}

GeographyFields QuizFields()
{
    return {Name, Capital, Items};
}

QString RegionName(int region)
{
    static const char *const names[Regions] = {
        QT_TRANSLATE_NOOP("WorldCountries", "North America"),
        QT_TRANSLATE_NOOP("WorldCountries", "Central America"),
        QT_TRANSLATE_NOOP("WorldCountries", "South America"),
        QT_TRANSLATE_NOOP("WorldCountries", "Western Europe"),
        QT_TRANSLATE_NOOP("WorldCountries", "Eastern Europe"),
        QT_TRANSLATE_NOOP("WorldCountries", "Scandanavia"),
        QT_TRANSLATE_NOOP("WorldCountries", "Eurasia"),
        QT_TRANSLATE_NOOP("WorldCountries", "Middle East"),
        QT_TRANSLATE_NOOP("WorldCountries", "Western Asia"),
        QT_TRANSLATE_NOOP("WorldCountries", "Eastern Asia"),
        QT_TRANSLATE_NOOP("WorldCountries", "Oceania"),
        QT_TRANSLATE_NOOP("WorldCountries", "Northern Africa"),
        QT_TRANSLATE_NOOP("WorldCountries", "Southern Africa"),
    };
    if (region < 1 || region > Regions)
        return {};
    return translate(names[region - 1]);
}

QString RegionText(const QuizTable &countries, int record)
{
    return RegionName(countries.number(record, Region));
}

QString CapitalText(const QuizTable &countries, int record)
{
    return translate("Capital-") + countries.text(record, Capital);
}

QString FlagFile(int record)
{
    return QStringLiteral("flag%1.png").arg(record, 3, 10, QLatin1Char('0'));
}

QList<QLineF> PointerLines(QPointF place, QSizeF map)
{
    // Towards the middle: a place in the left half is pointed at from its right, and so on.
    const double dx = place.x() < map.width() / 2 ? 1 : -1;
    const double dy = place.y() < map.height() / 2 ? 1 : -1;
    const double step = PointerLength / std::sqrt(2.0);
    const double barb = PointerLength / 4;
    return {
        QLineF(place, place + QPointF(dx * step, dy * step)),
        QLineF(place, place + QPointF(dx * barb, 0)),
        QLineF(place, place + QPointF(0, dy * barb)),
    };
}

std::optional<WorldShapesFile> LoadShapes(const QuizTable &countries, const QString &path)
{
    QFile file(path);
    // The shapes are some tens of kilobytes; a far larger file is not ours.
    if (!file.open(QIODevice::ReadOnly) || file.size() > 4 * 1024 * 1024)
        return std::nullopt;
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    WorldShapesFile shapes;
    shapes.size = QSizeF(root.value(QLatin1String("width")).toDouble(-1),
                         root.value(QLatin1String("height")).toDouble(-1));
    if (shapes.size.isEmpty())
        return std::nullopt;
    const QJsonObject outlines = root.value(QLatin1String("countries")).toObject();
    QList<QPoint> points;
    for (int r = 1; r <= countries.count(); ++r) {
        points.append(QPoint(countries.number(r, MapX), countries.number(r, MapY)));
        if (const auto outline = ParseOutline(outlines.value(QString::number(r))))
            shapes.click.setOutline(r, *outline);
    }
    shapes.click.setPoints(points);
    return shapes;
}

} // namespace WorldCountries
