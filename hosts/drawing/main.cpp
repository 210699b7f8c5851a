// kxdraw: a DXF drawing as a picture. dxflib reads it, cairo paints it, all geometry between them is the library's.

#include <unistd.h>

#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <new>
#include <optional>
#include <string>

#include "dxf_file.hpp"
#include "dxf_reader.hpp"
#include "geometry_builder.hpp"
#include "picture.hpp"
#include "report.hpp"

namespace {

using namespace kxdraw;

constexpr const char *usage =
    "usage: kxdraw DRAWING.dxf [-o FILE.svg|.png|.pdf] [-t TOLERANCE] [-s WIDTHxHEIGHT] [--points FILE] [-q] [-h]\n";

constexpr const char *help =
    "\n"
    "  -o FILE       the picture; without it the drawing's name with .svg, in the current directory\n"
    "  -t TOLERANCE  largest distance between a curve and its chords; without it 1/10000 of the drawing's longer side\n"
    "  -s WIDTHxHEIGHT  size in pixels (PDF: points); without it 1200 along the longer side\n"
    "  --points FILE every polyline's points as text\n"
    "  -q            no table: only a line on standard error when something is skipped\n"
    "\n"
    "Drawn: LINE, POINT, LWPOLYLINE, POLYLINE, CIRCLE, ARC, ELLIPSE, SPLINE, SOLID, TRACE, 3DFACE, and what INSERTs\n"
    "and DIMENSIONs bring by their blocks, seen from above, in planes of any extrusion direction; every line solid "
    "and\n"
    "of one width. Everything else is named and counted. In the table a VERTEX is a part of its POLYLINE; copies "
    "counts\n"
    "what inserted blocks repeat.\n"
    "Exit status: 0 drawn, 1 the drawing cannot be read or the picture not be written, 2 wrong arguments.\n";

struct options {
  std::string drawing, picture, points;
  double tolerance = 0;
  picture_size size;
  bool quiet = false, help = false;
};

struct usage_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

double tolerance_from(const std::string &text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !(value > 0 && value < 1e100))
    throw usage_error("the tolerance is not a number above 0: " + text);
  return value;
}

picture_size size_from(const std::string &text) {
  picture_size size;
  const char *last = text.data() + text.size();
  const auto width = std::from_chars(text.data(), last, size.width);
  const bool halfway = width.ec == std::errc() && width.ptr != last && *width.ptr == 'x';
  const auto height = halfway ? std::from_chars(width.ptr + 1, last, size.height) : width;
  const auto fits = [](int side) { return side >= 16 && side <= largest_side; };
  if (!halfway || height.ec != std::errc() || height.ptr != last || !fits(size.width) || !fits(size.height))
    throw usage_error("the size is not WIDTHxHEIGHT, each from 16 to " + std::to_string(largest_side) + ": " + text);
  return size;
}

options read_arguments(int count, char **arguments) {
  options result;
  bool plain = false;  // after "--"
  for (int i = 1; i < count; ++i) {
    const std::string argument = arguments[i];
    const auto value = [&] {
      if (i + 1 >= count) throw usage_error(argument + " needs a value");
      return std::string(arguments[++i]);
    };
    if (plain || argument.empty() || argument[0] != '-') {
      if (!result.drawing.empty()) throw usage_error("more than one drawing: " + argument);
      result.drawing = argument;
    } else if (argument == "--") {
      plain = true;
    } else if (argument == "-h" || argument == "--help") {
      result.help = true;
    } else if (argument == "-q") {
      result.quiet = true;
    } else if (argument == "-o") {
      result.picture = value();
    } else if (argument == "-t") {
      result.tolerance = tolerance_from(value());
    } else if (argument == "-s") {
      result.size = size_from(value());
    } else if (argument == "--points") {
      result.points = value();
    } else {
      throw usage_error("unknown option " + argument);
    }
  }
  if (result.help) return result;
  if (result.drawing.empty()) throw usage_error("no drawing given");
  if (result.picture.empty()) result.picture = std::filesystem::path(result.drawing).stem().string() + ".svg";
  if (!is_picture_name(result.picture)) throw usage_error("the picture's name does not end in .svg, .png or .pdf");
  return result;
}

// A line on the terminal that tells how far a long drawing has come; nothing when standard error is none.
class progress_line {
 public:
  ~progress_line() { clear(); }

  void show(const char *what, double done) {
    const auto now = std::chrono::steady_clock::now();
    if (!terminal_ || now < next_) return;
    next_ = now + std::chrono::milliseconds(100);
    std::fprintf(stderr, "\r\033[Kkxdraw: %s %3.0f %%", what, done * 100);
    shown_ = true;
  }
  void clear() {
    if (shown_) std::fputs("\r\033[K", stderr);
    shown_ = false;
  }

 private:
  const bool terminal_ = isatty(STDERR_FILENO) == 1;
  bool shown_ = false;
  std::chrono::steady_clock::time_point next_ = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
};

void run(const options &opts) {
  const auto start = std::chrono::steady_clock::now();
  library_time time;
  progress_line line;
  const drawing source = read_drawing(opts.drawing, [&](double done) { line.show("reading", done); });
  const built_drawing built =
      build_geometry(source, opts.tolerance, time, [&](double done) { line.show("building", done); });
  const picture_size size =
      write_picture(built, opts.picture, opts.size, time, [&](double done) { line.show("painting", done); });
  if (!opts.points.empty()) write_points(opts.points, built);
  line.clear();
  const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
  if (!opts.quiet) return print_report(std::cout, built, {opts.drawing, opts.picture, size, spent.count()}, time);
  const std::size_t skipped = skipped_count(built);
  if (skipped > 0)
    std::cerr << "kxdraw: " << opts.drawing << ": " << skipped << " of " << built.fates.size()
              << " entities skipped; without -q they are named\n";
}

}  // namespace

int main(int count, char **arguments) {
  try {
    const options opts = read_arguments(count, arguments);
    if (opts.help) {
      std::cout << usage << help;
    } else {
      run(opts);
    }
    std::cout.flush();
    if (!std::cout) throw drawing_error("standard output: cannot be written");
    return 0;
  } catch (const usage_error &error) {
    std::cerr << "kxdraw: " << error.what() << '\n' << usage;
    return 2;
  } catch (const std::bad_alloc &) {
    std::cerr << "kxdraw: not enough memory\n";
  } catch (const std::exception &error) {
    std::cerr << "kxdraw: " << error.what() << '\n';
  }
  return 1;
}
