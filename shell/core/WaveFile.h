// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// How long a PCM wave file plays, so that playing it to its end waits no longer than the
// sound. The header is checked whole: a damaged or lying header gives 0 (no wait at all).
namespace WaveFile {
// No sound of ours is longer; a header claiming more is not believed past this.
inline constexpr double LongestSeconds = 10.0;
// `start` is the beginning of the file (its first few kilobytes); `fileSize` its real size,
// which bounds the data a header may claim.
double seconds(const QByteArray &start, qint64 fileSize);
double seconds(const QString &path);
} // namespace WaveFile
