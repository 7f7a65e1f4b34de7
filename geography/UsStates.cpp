// SPDX-License-Identifier: GPL-3.0-or-later
#include "UsStates.h"

#include "quiz/Answers.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

Q_LOGGING_CATEGORY(lcGeography, "lumbridle.geography")

namespace UsStates {

namespace {
QString translate(const char *text)
{
    return QCoreApplication::translate("UsStates", text);
}

QRectF rectFrom(const QJsonObject &object)
{
    return QRectF(object.value(QLatin1String("x")).toDouble(-1),
                  object.value(QLatin1String("y")).toDouble(-1),
                  object.value(QLatin1String("w")).toDouble(-1),
                  object.value(QLatin1String("h")).toDouble(-1));
}
} // namespace

QuizTable::Layout Layout()
{
    return {QString::fromLatin1(FileName),
            Records,
            Fields,
            {Order, MapX, MapY},
            {Abbreviation, Name, Capital}};
}

GeographyFields QuizFields()
{
    return {Name, Capital, Items};
}

QString OrderText(int order)
{
    return QString::number(order) + OrdinalSuffix(order) + translate(" State");
}

QString CapitalText(const QuizTable &states, int record)
{
    return translate("Capital-") + states.text(record, Capital);
}

QString RegionText(const QuizTable &states, int record)
{
    return states.text(record, Region) + translate(" Region");
}

QString AdmittedText(const QuizTable &states, int record)
{
    return translate("Admitted-") + states.text(record, Admitted);
}

QString MapFile(const QuizTable &states, int record)
{
    if (record == Alaska || record == Hawaii)
        return {};
    return states.text(record, Abbreviation) + QStringLiteral("map.svg");
}

QString FlagFile(const QuizTable &states, int record)
{
    return states.text(record, Abbreviation) + QStringLiteral("flag.png");
}

QString AlaskaInset(bool lit)
{
    return lit ? QStringLiteral("akyellow.bmp") : QStringLiteral("akblue.bmp");
}

QString HawaiiInset(bool lit)
{
    return lit ? QStringLiteral("hiyellow.bmp") : QStringLiteral("hiblue.bmp");
}

std::optional<MapGeometry> LoadGeometry(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > 65536)
        return std::nullopt;
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject insets = root.value(QLatin1String("insets")).toObject();
    MapGeometry geometry;
    geometry.size = QSizeF(root.value(QLatin1String("width")).toDouble(-1),
                           root.value(QLatin1String("height")).toDouble(-1));
    geometry.alaska = rectFrom(insets.value(QLatin1String("AK")).toObject());
    geometry.hawaii = rectFrom(insets.value(QLatin1String("HI")).toObject());
    const QRectF whole(QPointF(0, 0), geometry.size);
    if (geometry.size.isEmpty() || !whole.contains(geometry.alaska) ||
        !whole.contains(geometry.hawaii) || geometry.alaska.isEmpty() || geometry.hawaii.isEmpty())
        return std::nullopt;
    return geometry;
}

MapClick LoadMapClick(const QuizTable &states, const QString &folder)
{
    MapClick click;
    QList<QPoint> points;
    for (int r = 1; r <= states.count(); ++r) {
        points.append(QPoint(states.number(r, MapX), states.number(r, MapY)));
        const QString file = folder + states.text(r, Abbreviation) + QStringLiteral("outline.json");
        if (const auto outline = LoadOutline(file))
            click.setOutline(r, *outline);
        else
            qCWarning(lcGeography) << "no outline in" << file;
    }
    click.setPoints(points);
    return click;
}

} // namespace UsStates
