// Files in memory, by their paths alone: one folder is like another, and every write succeeds.
#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "platform/files.h"

namespace evac {

class MemoryFiles : public Files {
 public:
  std::map<std::string, std::string, std::less<>> bytes_of;

  FileError read(std::string_view path, std::string& bytes) override {
    const auto file = bytes_of.find(path);
    bytes = file == bytes_of.end() ? "" : file->second;
    return file == bytes_of.end() ? kFileNotFound : kNoError;
  }
  FileError read_end(std::string_view path, std::size_t count, std::string& bytes) override {
    const FileError error = read(path, bytes);
    bytes.erase(0, bytes.size() - std::min(count, bytes.size()));
    return error;
  }
  FileError replace(std::string_view path, std::string_view bytes) override {
    bytes_of[std::string(path)] = bytes;
    return kNoError;
  }
  FileError append(std::string_view path, std::string_view bytes) override {
    bytes_of[std::string(path)] += bytes;
    return kNoError;
  }
  FileError remove(std::string_view path) override {
    return bytes_of.erase(std::string(path)) > 0 ? kNoError : kFileNotFound;
  }
  FileError copy(std::string_view from, std::string_view to) override {
    std::string bytes;
    const FileError error = read(from, bytes);
    return error == kNoError ? replace(to, bytes) : error;
  }
  FileError make_folder(std::string_view) override { return kNoError; }
  bool is_file(std::string_view path) override { return bytes_of.contains(path); }
  bool is_folder(std::string_view) override { return true; }
  std::vector<std::string> folders(std::string_view) override { return {}; }
  std::vector<std::string> files(std::string_view) override { return {}; }
  std::vector<std::string> drives() override { return {"C:"}; }
  bool drive_ready(char letter) override { return letter == 'C'; }
};

}  // namespace evac
