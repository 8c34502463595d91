#pragma once

#include <QString>

// Paths that the program proposes or that the user types, on the system where it runs. On Windows they
// stand as written; elsewhere a proposal on a drive ("C:\", "C:\export_norv2.XLS") becomes the same
// name in the user's home folder, and the native separator stands for the backslash.

// The proposal of an input box, for this system.
QString proposedPath(const QString& windowsPath);

// A folder as typed, with one separator at its end when it had none.
QString withFinalSeparator(const QString& folder);
