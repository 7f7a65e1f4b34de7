// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Choices of ours that are not activity settings (sound muted for a quiet classroom, full
// screen), kept in a small file in the user's configuration folder, never in lumbridle52.ini.
struct Preferences {
    bool muted = false;
    bool fullScreen = false;

    static Preferences &get();
    static QString path();
    void load();
    bool save() const;
};
