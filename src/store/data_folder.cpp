#include "store/data_folder.h"

#include "model/text.h"

namespace evac {

FileError DataFolder::read(std::string_view file, std::string& bytes) {
  const FileError error = doors_.files.read(path(file), bytes);
  if (error != kFileNotFound) return error;
  const FileError made = doors_.files.replace(path(file), "");
  // A full disk takes nothing from a file that holds nothing.
  return made == kDiskFull ? kNoError : made;
}

void DataFolder::reading_ended(std::string_view file, bool cut) {
  CutFile* known = doors_.known.find(file);
  if (!known && cut) known = &doors_.known.cut_files.emplace_back(CutFile{std::string(file)});
  if (!known || known->cut == cut) return;
  known->cut = cut;
  ++doors_.known.edition;
}

FileError DataFolder::replace(std::string_view file, std::string_view bytes) {
  CutFile* known = doors_.known.find(file);
  if (!known || !known->cut) return doors_.files.replace(path(file), bytes);
  FileError error = doors_.files.copy(path(file), path(file) + std::string(kKeptEnding));
  const bool kept = error == kNoError;
  // A file that is gone since has nothing left to lose.
  if (kept || error == kFileNotFound) error = doors_.files.replace(path(file), bytes);
  if (error == kNoError) {
    known->cut = false;
    ++doors_.known.edition;
    known->kept = known->kept || kept;
  }
  return error;
}

std::string write_fault(std::string_view file, FileError error) {
  return join("Ошибка записи ", file, " ", error, ": ", words_of(error));
}

std::string read_fault(std::string_view file, FileError error) {
  return join("Ошибка чтения ", file, " ", error, ": ", words_of(error));
}

}  // namespace evac
