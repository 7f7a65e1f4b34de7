// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

class QSize;

// Makes a window fit the screen it opens on. When its layout cannot shrink to the screen's
// free area (a small screen at 200 % scaling), every font in it is made smaller, step by step.
void ShrinkToScreen(QWidget *window);
// Gives a window its first size, or the screen's free area when that is smaller.
void ResizeWithinScreen(QWidget *window, const QSize &wanted);
