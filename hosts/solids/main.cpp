// kxsolids: bodies of the library as mesh files and as pictures.
#include <array>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <new>
#include <stdexcept>

#include "gallery.hpp"
#include "mesh_files.hpp"
#include "picture.hpp"
#include "primitives.hpp"

namespace {

using namespace kxsolids;

constexpr const char *usage =
    "usage: kxsolids NAME [NUMBER...] [--sectors N] [--stacks N] [--axis X,Y,Z] [--profile X,Y,X,Y,...] [OUTPUT...]\n"
    "       kxsolids read FILE [OUTPUT...]\n"
    "       kxsolids gallery [-o FOLDER]\n"
    "       kxsolids list\n";

constexpr const char *help =
    "\n"
    "NAME is a body, built of the numbers given and, where they end, of its usual ones; list names all with them.\n"
    "read takes a mesh file, gallery draws all bodies into FOLDER/solids.svg and .png.\n"
    "\n"
    "  --sectors N   steps around the axis\n"
    "  --stacks N    steps along it, around the tube of a torus\n"
    "  --axis X,Y,Z  where the z axis is turned to\n"
    "  --profile X,Y,X,Y,...  the polygon that is turned or moved\n"
    "  -o FILE       as often as wanted: .obj, .stl, .svg or .png, and .mesh, the library's own, of a surface\n"
    "  --ascii       STL as text\n"
    "  --view THETA,PHI  where the viewer of a picture is, in degrees: around the z axis, and down from it\n"
    "  --size PIXELS     side of a picture, 480 without it; a PNG is twice as fine\n"
    "Exit status: 0 done, 1 a file cannot be read or written, 2 wrong arguments.\n";

struct options {
  std::string command;
  std::vector<std::string> plain;  // numbers, or a file
  std::vector<std::string> outputs;
  std::vector<double> axis, profile;
  std::int32_t sectors = 0, stacks = 0;
  bool ascii = false, help = false, shaped = false;
  viewer from;
  double size = 480;
};

template <typename number>
number number_from(const std::string &text) {
  number value{};
  const char *last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  if (error != std::errc() || end != last || !std::isfinite(static_cast<double>(value)))
    throw std::invalid_argument("not a number that will do: " + text);
  return value;
}

std::vector<double> numbers_from(const std::string &text) {
  std::vector<double> found;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(',', at), text.size());
    found.push_back(number_from<double>(text.substr(at, end - at)));
    at = end + 1;
  }
  return found;
}

viewer viewer_from(const std::string &text) {
  const std::vector<double> angles = numbers_from(text);
  if (angles.size() != 2 || !(angles[0] >= 0 && angles[0] <= 360 && angles[1] >= 0 && angles[1] <= 180))
    throw std::invalid_argument("a view is THETA from 0 to 360 and PHI from 0 to 180: " + text);
  return {angles[0], angles[1]};
}

std::string ending_of(const std::string &path) {
  std::string ending = std::filesystem::path(path).extension();
  for (const char *known : {".obj", ".stl", ".svg", ".png", ".mesh"})
    if (ending == known) return ending;
  throw std::invalid_argument("not .obj, .stl, .svg, .png or .mesh: " + path);
}

options read_arguments(int count, char **arguments) {
  options result;
  for (int i = 1; i < count; ++i) {
    const std::string argument = arguments[i];
    const auto value = [&]() -> std::string {
      if (i + 1 >= count) throw std::invalid_argument(argument + " needs a value");
      return arguments[++i];
    };
    const auto shape = [&] {
      result.shaped = true;
      return value();
    };
    if (argument == "-h" || argument == "--help") {
      result.help = true;
    } else if (argument == "-o") {
      result.outputs.push_back(value());
    } else if (argument == "--sectors") {
      result.sectors = number_from<std::int32_t>(shape());
    } else if (argument == "--stacks") {
      result.stacks = number_from<std::int32_t>(shape());
    } else if (argument == "--axis") {
      result.axis = numbers_from(shape());
    } else if (argument == "--profile") {
      result.profile = numbers_from(shape());
    } else if (argument == "--ascii") {
      result.ascii = true;
    } else if (argument == "--view") {
      result.from = viewer_from(value());
    } else if (argument == "--size") {
      result.size = number_from<std::int32_t>(value());
      if (result.size < 16 || result.size > 8000) throw std::invalid_argument("a picture has 16 to 8000 pixels");
    } else if (result.command.empty()) {
      result.command = argument;
    } else if (argument[0] == '-' && argument.find_first_of("0123456789") == std::string::npos) {
      throw std::invalid_argument("no such option: " + argument);
    } else {
      result.plain.push_back(argument);
    }
  }
  if (result.command.empty() && !result.help) throw std::invalid_argument("what shall it be?");
  return result;
}

void list_primitives() {
  for (const primitive &p : primitives()) {
    std::cout << p.name;
    for (const parameter &each : p.parameters) std::cout << ' ' << each.name << '=' << each.usual;
    if (p.usual.sectors != 0) std::cout << " --sectors " << p.usual.sectors;
    if (p.usual.stacks != 0) std::cout << " --stacks " << p.usual.stacks;
    const char *before = " --profile ";
    for (const pnt_2d &corner : p.usual.profile) {
      std::cout << before << corner.x << ',' << corner.y;
      before = ",";
    }
    std::cout << (*p.about == '\0' ? "" : "  # ") << p.about << '\n';
  }
}

body build_named(const options &opts) {
  const primitive &p = find_primitive(opts.command);
  std::vector<double> numbers;
  for (const std::string &text : opts.plain) numbers.push_back(number_from<double>(text));
  request r = usual_request(p, numbers);
  if (opts.sectors != 0) r.sectors = opts.sectors;
  if (opts.stacks != 0) r.stacks = opts.stacks;
  if (!opts.axis.empty()) {
    if (opts.axis.size() != 3) throw std::invalid_argument("an axis has three coordinates");
    kx_set_vector_3d(opts.axis[0], opts.axis[1], opts.axis[2], 0, 0, &r.axis);
    if (kx_vector_normalize(&r.axis) != 0) throw std::invalid_argument("the axis has no direction");
  }
  if (!opts.profile.empty()) {
    if (opts.profile.size() % 2 != 0) throw std::invalid_argument("a profile has an x and a y for each corner");
    r.profile.clear();
    for (std::size_t i = 0; i < opts.profile.size(); i += 2)
      r.profile.push_back({opts.profile[i], opts.profile[i + 1]});
  }
  return build(p, r);
}

body read_named(const options &opts) {
  if (opts.plain.size() != 1 || opts.shaped) throw std::invalid_argument("read takes one file and no shape");
  owned_surface read(kx_create_surface());
  if (!read) throw std::bad_alloc();
  const std::int32_t status = kx_read_surface_file(opts.plain[0].c_str(), read.get());
  const char *const faults[] = {"",
                                "cannot be read",
                                "cannot be opened",
                                "ends too early",
                                "has a record of a kind that does not belong there",
                                "has counts that do not fit",
                                "has a face that does not fit"};
  if (status == 80) throw std::bad_alloc();
  if (status != 0) throw std::runtime_error(opts.plain[0] + ": " + faults[status]);
  return read;
}

void write(const body &b, const mesh &m, const std::string &path, const options &opts) {
  const std::string ending = ending_of(path);
  const std::string name = opts.command == "read" ? "surface" : opts.command;
  if (ending == ".obj") return write_obj(path, name, m);
  if (ending == ".stl") return write_stl(path, name, m, opts.ascii);
  if (ending == ".mesh") return write_mesh(path, b);
  const auto paint = [&](const sheet &page) {
    const double air = opts.size / 16;
    draw(page, {air, air}, opts.size - 2 * air, m, opts.from, blue);
  };
  (ending == ".svg" ? write_svg : write_png)(path, {opts.size, opts.size}, paint);
}

void run(const options &opts) {
  if (opts.command == "gallery" || opts.command == "list") {
    const bool draws = opts.command == "gallery";
    if (!opts.plain.empty() || opts.shaped || opts.outputs.size() > (draws ? 1 : 0))
      throw std::invalid_argument(opts.command + " does not take that");
    if (!draws) return list_primitives();
    const std::string folder = opts.outputs.empty() ? "." : opts.outputs[0];
    std::filesystem::create_directories(folder);
    return write_gallery(folder);
  }
  const body b = opts.command == "read" ? read_named(opts) : build_named(opts);
  for (const std::string &path : opts.outputs)
    if (ending_of(path) == ".mesh" && !b.open) throw std::invalid_argument("only a surface makes a mesh file");
  const mesh m = mesh_of(b);
  const measures sums = measure(m);
  const extent box = extent_of(m);
  std::cout << opts.command << ": " << m.points.size() << " vertices, " << m.faces.size() << " faces, area "
            << sums.area;
  if (m.closed) std::cout << ", volume " << sums.volume;
  std::cout << ", from " << box.low.x << ' ' << box.low.y << ' ' << box.low.z << " to " << box.high.x << ' '
            << box.high.y << ' ' << box.high.z << '\n';
  for (const std::string &path : opts.outputs) write(b, m, path, opts);
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
    if (!std::cout) throw std::runtime_error("standard output: cannot be written");
    return 0;
  } catch (const std::invalid_argument &error) {
    std::cerr << "kxsolids: " << error.what() << '\n' << usage;
    return 2;
  } catch (const std::bad_alloc &) {
    std::cerr << "kxsolids: not enough memory\n";
  } catch (const std::exception &error) {
    std::cerr << "kxsolids: " << error.what() << '\n';
  }
  return 1;
}
