#pragma once
// Drives, folders and files to pick from. Paths end without a separator, but for a root.

#include <vector>

#include "platform/ui/Control.h"

namespace fenvale {

/// The places a path can start from: "/", the user's folder and mounted media.
class DriveList final : public Control {
 public:
  DriveList(Screen& owner, std::string name);
  ControlKind kind() const override { return ControlKind::driveList; }
  const std::vector<std::string>& drives() const { return drives_; }
  const std::string& drive() const { return drive_; }
  void setDrive(std::string path);
  std::function<void()> onChange;
  void userChoose(std::string path);

 private:
  std::vector<std::string> drives_;
  std::string drive_;
};

class FolderTree final : public Control {
 public:
  FolderTree(Screen& owner, std::string name);
  ControlKind kind() const override { return ControlKind::folderTree; }
  const std::string& path() const { return path_; }
  /// Error 68 when the place is not ready or not there (the device-not-ready case of the rules).
  void setPath(std::string path);
  /// The folders right below the path, sorted; hidden ones left out.
  std::vector<std::string> folders() const;
  std::function<void()> onChange;
  void userChoose(std::string path);

 private:
  std::string path_;
};

class FileList final : public Control {
 public:
  /// `pattern` is a file name or wild cards joined by ";" ("*.bmp;*.jpg"), matched without case.
  FileList(Screen& owner, std::string name, std::string pattern = "*.*");
  ControlKind kind() const override { return ControlKind::fileList; }
  const std::string& path() const { return path_; }
  void setPath(std::string path);
  const std::string& pattern() const { return pattern_; }
  void setPattern(std::string pattern);
  /// The names of the folder's files that match, sorted; empty when the folder cannot be read.
  std::vector<std::string> files() const;
  const std::string& fileName() const { return fileName_; }
  std::function<void()> onClick;
  void userClick(std::string fileName);

 private:
  std::string path_;
  std::string pattern_;
  std::string fileName_;
};

/// Whether `name` matches one of the ";"-joined wild cards ("*" and "?"; "*.*" is every name), without case.
bool matchesPattern(std::string_view name, std::string_view pattern);

}  // namespace fenvale
