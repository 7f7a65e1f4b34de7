// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The audio device behind the sound service, in a module of its own that is loaded when the
// first sound plays, so starting the program never waits for the audio libraries.
class SoundBackend {
public:
    virtual ~SoundBackend() = default;
    // False when there is no audio device; the backend then stays silent.
    virtual bool available() = 0;
    // Starts a wave file and returns at once.
    virtual void play(const QString &file) = 0;
    virtual void stop() = 0;
};

// The module's one entry point.
using CreateSoundBackend = SoundBackend *(*)();
inline constexpr auto SoundBackendEntry = "lumbridleCreateSoundBackend";
