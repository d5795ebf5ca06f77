// Letters with Alt for the buttons, labels and tabs of a window, so that each is one key away.
#pragma once

class QWidget;

// Gives every button and tab with a text, and every label that stands for a control, a letter of its text
// that nothing else has which is shown at the same time; letters that the texts bring along stay when they
// can, and a text whose letters are all taken gets a digit. For windows whose texts change it may run again.
// Does nothing unless the host wants it.
void giveMnemonics(QWidget& window);
