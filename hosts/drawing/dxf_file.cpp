#include "dxf_file.hpp"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

namespace kxdraw {

namespace {

std::string read_bytes(const std::string &path) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) throw drawing_error(path + ": no such file");
  if (fs::is_directory(status)) throw drawing_error(path + ": is a directory");
  if (!fs::is_regular_file(status)) throw drawing_error(path + ": not a regular file");
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file.is_open() || file.bad()) throw drawing_error(path + ": cannot be read");
  return bytes;
}

std::optional<int> group_code(const std::string &line) {
  int code = 0;
  const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), code);
  if (line.empty() || error != std::errc() || end != line.data() + line.size()) return std::nullopt;
  return code;
}

// The lines of a text, one after the other.
class lines {
 public:
  explicit lines(const std::string &text) : text_(text) {}

  std::optional<std::string> next() {
    if (at_ >= text_.size()) return std::nullopt;
    const std::size_t end = text_.find('\n', at_);
    std::string line = text_.substr(at_, end == std::string::npos ? end : end - at_);
    at_ = end == std::string::npos ? text_.size() : end + 1;
    ++number_;
    return line;
  }
  std::size_t number() const { return number_; }
  double done() const { return static_cast<double>(at_) / static_cast<double>(text_.size()); }

 private:
  const std::string &text_;
  std::size_t at_ = 0;
  std::size_t number_ = 0;
};

}  // namespace

std::string trimmed(const std::string &line) {
  const char *blanks = " \t\r";
  const std::size_t first = line.find_first_not_of(blanks);
  return first == std::string::npos ? std::string() : line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

void read_dxf_pairs(const std::string &path, const pair_visitor &visit) {
  std::string bytes = read_bytes(path);
  if (bytes.empty()) throw drawing_error(path + ": is empty");
  if (bytes.starts_with("AutoCAD Binary DXF")) throw drawing_error(path + ": is a binary DXF, only text is read");
  if (bytes.find('\0') != std::string::npos) throw drawing_error(path + ": is not a DXF drawing, it holds binary data");
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.erase(0, 3);

  lines input(bytes);
  bool begun = false;
  while (true) {
    const std::optional<std::string> code_line = input.next();
    const std::optional<std::string> value_line = input.next();
    if (!code_line || !value_line) {
      throw drawing_error(path + (begun ? ": is truncated, it ends without EOF" : ": is not a DXF drawing"));
    }
    const std::optional<int> code = group_code(trimmed(*code_line));
    if (code == 999) continue;
    const std::string value = trimmed(*value_line);
    if (!begun && (code != 0 || value != "SECTION"))
      throw drawing_error(path + ": is not a DXF drawing, it does not begin with a SECTION");
    if (!code)
      throw drawing_error(path + ": is damaged, line " + std::to_string(input.number() - 1) + " is not a group code");
    begun = true;
    visit(*code, value, input.done());
    if (code == 0 && value == "EOF") return;
  }
}

}  // namespace kxdraw
