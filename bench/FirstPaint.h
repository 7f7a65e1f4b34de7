// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

// Start-up probes call this before showing their window: once the window has been painted for
// the first time it prints "shown <steady clock in nanoseconds>" on stdout and ends the event
// loop, so the benchmark runner can time exec-to-window.
void ReportFirstPaint(QWidget *window);
