// The listers of Form1 that stand out of sight: the working folder at start, the data folder, the messages.
#pragma once

#include "platform/listers.h"

namespace evac {

inline constexpr std::string_view kMessagePatterns = "*.Wav;*.mp3;*.mid;*.rmi";

struct FolderListers {
  FolderListers(Form& form, Files& files)
      : place{form.place("FolderListers")},
        Dir1{place, "Dir1", files},
        Dir3{place, "Dir3", files},
        File1{place, "File1", files, kMessagePatterns} {}
  Place place;

  FolderLister Dir1;  // the working folder at start
  FolderLister Dir3;  // the data folder, later the messages
  FileLister File1;   // the messages
};

}  // namespace evac
