#pragma once

class QPlainTextEdit;

// The entry limit of a multi-line box, as QLineEdit::setMaxLength is for a single line: text beyond
// `longueur` characters, typed or pasted, is cut off.
void limiter_saisie(QPlainTextEdit& zone, int longueur);
