// Open and save: what the file screens and the entries of the file menu do with the image.
#pragma once

#include <string>

namespace bkconf {

/// Reads a configuration file, whatever its kind, and shows the module in it; everything counts as
/// changed then, so that a Send writes every table. Throws RuntimeError (FileNotRead,
/// FileTooShort), and tables, flags, path and title are as before then.
void OpenModule(const std::string& path);

/// Writes the file at `CurrentFilePath`. Throws RuntimeError (FileNotWritten); the image stays, and
/// so does an older file.
void SaveModule();

/// Writes the image as a file of that name, with the extension behind it unless the name ends in it
/// letter for letter. The path that is kept has the extension added in any case: after a name that
/// was typed with it, the next save goes to another file. It is meant to be so. Throws as
/// SaveModule does, and keeps path and title then.
void SaveModuleAs(const std::string& directory, const std::string& name);

/// True when all tables of the image are in memory, so that a file of it would be whole.
bool SaveDialogGuard();

/// What a file of this module is called by default: a word for its kind and its address letter.
/// Empty while there is no kind.
std::string ProposedName();

}  // namespace bkconf
