// A folder of its own for a test, found through KXLINK as long as it lives, with a message file in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

class message_folder {
 public:
  // With the message file as delivered.
  message_folder() {
    std::filesystem::copy_file(std::filesystem::path(KX_SOURCE_DIR) / "message" / "KXMSG.DAT", file());
  }
  // With this one.
  explicit message_folder(const std::string &contents) { std::ofstream(file(), std::ios::binary) << contents; }
  ~message_folder() {
    set_link("");
    std::filesystem::remove_all(path);
  }
  message_folder(const message_folder &) = delete;
  message_folder &operator=(const message_folder &) = delete;

  std::filesystem::path file() const { return path / "MSG" / "KXMSG.DAT"; }

  // An empty value takes the variable away.
  static void set_link(const std::string &value) {
#ifdef _WIN32
    _putenv(("KXLINK=" + value).c_str());
#else
    value.empty() ? unsetenv("KXLINK") : setenv("KXLINK", value.c_str(), 1);
#endif
  }

  const std::filesystem::path path = make();

 private:
  static std::filesystem::path make() {
    const auto made = std::filesystem::temp_directory_path() / ("kxgeom-" + std::to_string(std::random_device()()));
    std::filesystem::create_directories(made / "MSG");
    set_link(made.string());
    return made;
  }
};
