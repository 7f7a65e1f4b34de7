// SPDX-License-Identifier: GPL-3.0-or-later
#include "WaveFile.h"

#include <optional>
#include <QFile>
#include <QtEndian>

namespace WaveFile {

namespace {
struct Format {
    quint16 channels = 0;
    quint32 sampleRate = 0;
    quint32 byteRate = 0;
    quint16 blockAlign = 0;
    quint16 bits = 0;

    // A byte rate that does not follow from the other fields would stretch or shrink the wait.
    bool plausible() const
    {
        return channels >= 1 && channels <= 8 && sampleRate >= 1000 && sampleRate <= 384000 &&
               bits >= 8 && bits <= 32 && bits % 8 == 0 &&
               blockAlign == quint32(channels) * bits / 8 &&
               byteRate == quint64(sampleRate) * blockAlign;
    }
};

template <typename T> T at(const QByteArray &bytes, qsizetype pos)
{
    return qFromLittleEndian<T>(bytes.constData() + pos);
}
} // namespace

double seconds(const QByteArray &start, qint64 fileSize)
{
    if (start.size() < 12 || !start.startsWith("RIFF") || start.mid(8, 4) != "WAVE")
        return 0;
    std::optional<Format> format;
    qint64 pos = 12;
    while (pos + 8 <= start.size()) {
        const QByteArray id = start.mid(pos, 4);
        const quint32 size = at<quint32>(start, pos + 4);
        const qint64 body = pos + 8;
        if (id == "fmt ") {
            if (size < 16 || body + 16 > start.size())
                return 0;
            format = Format{at<quint16>(start, body + 2), at<quint32>(start, body + 4),
                            at<quint32>(start, body + 8), at<quint16>(start, body + 12),
                            at<quint16>(start, body + 14)};
            if (!format->plausible())
                return 0;
        } else if (id == "data") {
            if (!format)
                return 0;
            const qint64 held = qBound<qint64>(0, fileSize - body, size);
            return qMin(double(held) / format->byteRate, LongestSeconds);
        }
        pos = body + qint64(size) + (size & 1);
    }
    return 0;
}

double seconds(const QString &path)
{
    QFile in(path);
    if (!in.open(QIODevice::ReadOnly))
        return 0;
    return seconds(in.read(4096), in.size());
}

} // namespace WaveFile
