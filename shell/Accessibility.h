// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// What screen readers are told about our own widgets: a top-level window of ours is a window
// named by its caption (not an unnamed pane), and a gauge is a progress bar with its value.
// Safe to call often; installs once.
void InstallAccessibility();

// A caption as a screen reader should say it: no tab in front, no mnemonic marks ("&&" is "&").
QString SpokenCaption(const QString &caption);
