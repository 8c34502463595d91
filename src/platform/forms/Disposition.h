#pragma once

class QLayout;
class QWidget;

// Takes a widget out of whatever layout below `disposition` holds it, so that another layout can take it
// in (a screen moves the frame's own controls into its groups). False when no layout there holds it.
bool retirer_de(QLayout* disposition, QWidget* w);
