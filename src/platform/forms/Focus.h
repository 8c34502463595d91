#pragma once

class QWidget;

// Gives a control the focus, from whatever screen the code runs in: its screen comes to the front
// and, when the control lies on a page of a tab control that is not the one shown, that page comes
// forward first, since a page in the background keeps its fields reachable. The control's GotFocus
// then runs as for a user's click. A control whose screen is not shown, or that is disabled or
// invisible, cannot take the focus: 5 "Argument ou appel de procédure incorrect".
void SetFocus(QWidget& contrôle);
