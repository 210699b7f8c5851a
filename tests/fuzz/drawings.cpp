// Any DXF file: drawn by the drawing host's reader and builder, or refused with one line.
#include "dxf_file.hpp"
#include "dxf_reader.hpp"
#include "geometry_builder.hpp"
#include "input.hpp"

namespace {

// Bytes as group pairs that a drawing might have.
std::string drawing_of(fuzz::input &in) {
  static constexpr const char *kinds[] = {"LINE",   "ARC",    "CIRCLE", "ELLIPSE", "SPLINE", "LWPOLYLINE", "POLYLINE",
                                          "VERTEX", "SEQEND", "INSERT", "POINT",   "SOLID",  "3DFACE",     "DIMENSION",
                                          "TEXT",   "BLOCK",  "ENDBLK", "TRACE",   "MTEXT",  "HATCH"};
  static constexpr std::int32_t codes[] = {10, 20, 30, 11, 21, 31, 12, 22, 13, 23,  39,  40,  41, 42, 43, 50,
                                           51, 62, 66, 70, 71, 72, 73, 74, 90, 210, 220, 230, 44, 45, 60, 67};
  static constexpr const char *sections[] = {"BLOCKS", "ENTITIES", "TABLES", "HEADER"};
  std::string text;
  const auto pair = [&text](std::int32_t code, const std::string &value) {
    text += std::to_string(code) + "\n" + value + "\n";
  };
  while (in.rest()) {
    pair(0, "SECTION");
    pair(2, sections[in.below(4)]);
    for (std::int32_t n = in.below(6); n > 0 && in.rest(); --n) {
      pair(0, kinds[in.below(20)]);
      pair(8, "0");
      pair(2, std::string(1, static_cast<char>('A' + in.below(3))));
      for (std::int32_t m = in.below(40); m > 0 && in.rest(); --m) {
        const std::int32_t code = codes[in.below(32)];
        const double value = in.number();
        pair(code, code < 60 || code > 99 ? std::to_string(value) : std::to_string(in.byte() % 40 - 4));
      }
    }
    pair(0, "ENDSEC");
  }
  pair(0, "EOF");
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  static const fuzz::scratch_folder folder;
  static const std::string name = folder.file("given");
  fuzz::input in(data, size);
  const bool made = in.byte() % 4 != 0;
  const std::string text = made ? drawing_of(in) : in.text();
  std::FILE *file = std::fopen(name.c_str(), "wb");
  REQUIRE(file != nullptr);
  std::fwrite(text.data(), 1, text.size(), file);
  std::fclose(file);
  try {
    const auto nothing = [](double) {};
    const kxdraw::drawing source = kxdraw::read_drawing(name, nothing);
    kxdraw::library_time time;
    const kxdraw::built_drawing built = kxdraw::build_geometry(source, 0.0, time, nothing);
    REQUIRE(built.fates.size() == source.entity_count);
    for (const kxdraw::drawn_path &path : built.paths) REQUIRE(path.source != nullptr);
  } catch (const kxdraw::drawing_error &) {
  }
  return 0;
}
