// Files in and out, and what to say when one of them fails. Used by pictures and manuals.
#pragma once

#include <QByteArray>
#include <QString>
#include <stdexcept>

namespace share_maker {

/// Names the file and what is wrong with it.
std::runtime_error Failure(const QString& file, const char* what);

/// Throws Failure when the file cannot be read.
QByteArray Content(const QString& file);

/// All of it or, with a Failure, none: half a file would pass for a finished one at the next build.
void WriteContent(const QString& file, const QByteArray& content);

}  // namespace share_maker
