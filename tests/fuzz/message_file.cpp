// Any message file: every number gets a text that fits, and the box is shown whatever the file holds.
#include "input.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  static const fuzz::scratch_folder folder;
  static const std::string name = [] {
    std::filesystem::create_directory(folder.file("MSG"));
    setenv("KXLINK", folder.file("").c_str(), 1);
    return folder.file("MSG/KXMSG.DAT");
  }();
  fuzz::input in(data, size);
  const std::int32_t numbers[] = {0, in.byte() - 8, in.byte() * 256 + in.byte(), INT32_MAX, INT32_MIN};
  std::FILE *file = std::fopen(name.c_str(), "wb");
  REQUIRE(file != nullptr);
  const std::string text = in.text();
  std::fwrite(text.data(), 1, text.size(), file);
  std::fclose(file);
  for (const std::int32_t number : numbers) {
    char *buffer = static_cast<char *>(std::malloc(144));
    std::memset(buffer, 'x', 144);
    kx_get_message(number, buffer);
    REQUIRE(std::memchr(buffer, 0, 144) != nullptr);
    std::free(buffer);
    kx_display_msg(text.substr(0, 10).c_str(), number, text.substr(0, 300).c_str());
  }
  return 0;
}
