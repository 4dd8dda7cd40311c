// SPDX-License-Identifier: MIT
// Names, paths and figures within texts that are written from right to left. Safe from any thread.
#pragma once

#include <QString>

namespace zelk {

/// Whether the translation in use is written from right to left. Qt asks it the same, and mirrors the interface.
bool isWrittenFromRight();

/// Keeps a text of its own direction together within a text from right to left, by invisible marks around it; otherwise
/// its parts would be moved apart at its spaces and signs. A path always runs from left to right, anything else as its
/// first letter does. Unchanged where the translation is written from left to right.
QString isolated(const QString& text);

/// The text without such marks, for what stands alone and is cut or measured by its characters.
QString withoutIsolation(QString text);

/// A line of isolated texts with nothing but signs between them, whose order nothing else would tell. Unchanged where
/// the translation is written from left to right.
QString inReadingOrder(const QString& line);

}  // namespace zelk
