#include "report.hpp"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <map>
#include <ostream>
#include <utility>

#include "dxf_file.hpp"

namespace kxdraw {

namespace {

struct kind_row {
  std::size_t in_file = 0, drawn = 0, copies = 0, points = 0;

  void operator+=(const kind_row &other) {
    in_file += other.in_file;
    drawn += other.drawn;
    copies += other.copies;
    points += other.points;
  }
};

void print_row(std::ostream &out, const std::string &kind, const kind_row &row) {
  out << std::left << std::setw(24) << kind << std::right;
  for (const std::size_t number : {row.in_file, row.drawn, row.in_file - row.drawn, row.copies, row.points})
    out << std::setw(9) << number;
  out << '\n';
}

void print_kinds(std::ostream &out, const built_drawing &built) {
  std::map<std::string, kind_row> rows;
  kind_row total;
  for (const fate &f : built.fates) {
    const kind_row row{1, f.copies > 0 ? 1u : 0u, static_cast<std::size_t>(f.copies), f.points};
    rows[f.source->kind] += row;
    total += row;
  }
  out << std::left << std::setw(24) << "kind" << std::right;
  for (const char *head : {"in file", "drawn", "skipped", "copies", "points"}) out << std::setw(9) << head;
  out << '\n';
  for (const auto &[kind, row] : rows) print_row(out, kind, row);
  print_row(out, "all", total);
}

// Kind and reason, with the handles of those they hold for.
using reasons = std::map<std::pair<std::string, std::string>, std::vector<std::string>>;

std::string name_of(const fate &f) {
  return f.source->handle.empty() ? std::string("#").append(std::to_string(f.source->index)) : f.source->handle;
}

void print_reasons_of(std::ostream &out, const char *title, const reasons &found) {
  constexpr std::size_t named = 6;
  if (found.empty()) return;
  out << '\n' << title << '\n';
  for (const auto &[key, names] : found) {
    out << "  " << std::left << std::setw(22) << key.first << std::right << std::setw(9) << names.size() << "  "
        << key.second << " (";
    for (std::size_t i = 0; i < std::min(named, names.size()); ++i) out << (i == 0 ? "" : " ") << names[i];
    out << (names.size() > named ? " ..." : "") << ")\n";
  }
}

void print_time(std::ostream &out, const library_time &time, double seconds) {
  const std::pair<call_group, const char *> groups[] = {
      {call_group::points, "points and lists"}, {call_group::arcs, "arcs and ellipses"},
      {call_group::splines, "splines"},         {call_group::matrices, "matrices and transforms"},
      {call_group::extents, "extents"},         {call_group::viewport, "window to viewport"}};
  double sum = 0;
  out << "\ntime in the library, ms\n" << std::fixed << std::setprecision(3);
  for (const auto &[group, name] : groups) {
    const double spent = std::chrono::duration<double, std::milli>(time.of(group).spent).count();
    sum += spent;
    out << "  " << std::left << std::setw(24) << name << std::right << std::setw(12) << spent << '\n';
  }
  out << "  " << std::left << std::setw(24) << "all" << std::right << std::setw(12) << sum << "  of "
      << std::setprecision(0) << seconds * 1000 << " ms\n"
      << std::defaultfloat;
}

}  // namespace

std::size_t skipped_count(const built_drawing &built) {
  return static_cast<std::size_t>(
      std::count_if(built.fates.begin(), built.fates.end(), [](const fate &f) { return f.copies == 0; }));
}

void print_reasons(std::ostream &out, const built_drawing &built) {
  reasons skipped, partly;
  for (const fate &f : built.fates) {
    const std::string &kind = f.source->kind;
    if (f.copies == 0) {
      skipped[{kind, f.fault}].push_back(name_of(f));
      continue;
    }
    if (f.left_out > 0) partly[{kind, "not in every copy, " + f.fault}].push_back(name_of(f));
    if (!f.note.empty()) partly[{kind, f.note}].push_back(name_of(f));
  }
  print_reasons_of(out, "skipped, with handles", skipped);
  print_reasons_of(out, "drawn, but, with handles", partly);
}

void print_report(std::ostream &out, const built_drawing &built, const report_frame &frame, const library_time &time) {
  out << std::setprecision(9);
  out << "drawing    " << frame.drawing << '\n'
      << "picture    " << frame.picture << ", " << frame.size.width << " x " << frame.size.height << '\n'
      << "tolerance  " << built.tolerance << '\n';
  if (built.empty) {
    out << "extents    none, nothing is drawn\n\n";
  } else {
    const rect_2d &box = built.extents;
    out << "extents    " << box.x1 << " " << box.y1 << " to " << box.x2 << " " << box.y2 << "\n\n";
  }
  print_kinds(out, built);
  print_reasons(out, built);
  print_time(out, time, frame.seconds);
}

void write_points(const std::string &path, const built_drawing &built) {
  std::ofstream out(path);
  out << std::setprecision(17) << "tolerance " << built.tolerance << '\n';
  for (const drawn_path &drawn : built.paths) {
    const entity &ent = *drawn.source;
    out << "path " << ent.kind << ' ' << ent.index << ' ' << (ent.handle.empty() ? "-" : ent.handle) << ' '
        << drawn.copy << (drawn.closed ? " closed " : " open ") << drawn.points.size() << '\n';
    for_each_point(drawn.points.get(), [&](double x, double y) { out << x << ' ' << y << '\n'; });
  }
  out.flush();
  if (!out) throw drawing_error(path + ": cannot be written");
}

}  // namespace kxdraw
