#pragma once

class QLineEdit;
class QPlainTextEdit;

// The entry limit of a one-line box. It limits what the user types or pastes, as
// QLineEdit::setMaxLength would, and nothing else: a text the program writes (a record number counted
// past the box, a lookup's pick) stays whole in the box and reaches the file whole, where setMaxLength
// would cut it. A text already longer than the limit can be shortened, not lengthened.
void limiter_saisie(QLineEdit& boîte, int longueur);
// That limit, or the box's own maxLength when it has none.
int limite_saisie(const QLineEdit& boîte);

// The entry limit of a multi-line box, as QLineEdit::setMaxLength is for a single line: text beyond
// `longueur` characters, typed or pasted, is cut off.
void limiter_saisie(QPlainTextEdit& zone, int longueur);
