// The mesh file: a header, the vertices of a grid and its four-sided faces, each a record of 32 bytes. Little-endian,
// as the machines of both builds are: a record is written and read as it lies in memory.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "kxgeom/list.h"
#include "kxgeom/records.h"
#include "kxgeom/runtime.h"
#include "kxgeom/solids.h"
#include "list/items.hpp"
#include "list/point_kind.hpp"
#include "records/dimension.hpp"
#include "records/polyface.hpp"
#include "records/solid_builder.hpp"
#include "records/surface_limits.hpp"
#include "records/vertex_table.hpp"

static_assert(std::endian::native == std::endian::little);

namespace {

enum kind : std::int32_t { header_kind, vertex_kind, face_kind };

// A record: its kind, a number, and what is left of 32 bytes.
struct grid_record {
  std::int32_t kind, number, data[6];
};
static_assert(sizeof(grid_record) == 32);

constexpr std::size_t block_records = 1024;

constexpr std::int32_t grid_surface = 315;

// The file's own buffer stays off: whole blocks go straight through.
std::FILE *open_blocks(const char *name, const char *mode, const char *location) {
  std::FILE *file = name ? std::fopen(name, mode) : nullptr;
  if (file) {
    std::setvbuf(file, nullptr, _IONBF, 0);
  } else {
    kx_display_msg("BADFILE", 0, location);
  }
  return file;
}

class grid_writer {
 public:
  grid_writer(const char *name, const char *location) : file_(open_blocks(name, "wb", location)) {}
  explicit operator bool() const { return file_ != nullptr; }

  // Where the next record goes; to be filled before the next call.
  grid_record *next() { return room(1).at; }

  // Where the next records go, as many as are wanted or fit before the block is full, at least one.
  struct run {
    grid_record *at;
    std::size_t count;
  };
  run room(std::size_t wanted) {
    if (used_ == block_records) flush();
    const run r = {&block_[used_], std::min(wanted, block_records - used_)};
    used_ += r.count;
    return r;
  }

  // Whether all of it went out.
  bool close() {
    flush();
    return (std::fclose(file_) == 0) & !failed_;
  }

 private:
  void flush() {
    if (std::fwrite(block_, sizeof(grid_record), used_, file_) != used_) failed_ = true;
    used_ = 0;
  }

  std::FILE *file_;
  bool failed_ = false;
  std::size_t used_ = 0;
  grid_record block_[block_records];
};

// A poly_3d lies in memory as its record does behind the kind.
void put_vertex(grid_record &record, const poly_3d &vertex) {
  record.kind = vertex_kind;
  std::memcpy(&record.number, &vertex, sizeof vertex);
}

// Items that are no points are passed over; the points of other kinds have the number 0 or their own, and z 0 or
// theirs.
void write_vertices(grid_writer &out, const list_hdr *points) {
  for (const list_item &item : kx::items(points)) {
    // Items made one after another lie so in memory: asked for now, those a hundred records on are there when needed.
    __builtin_prefetch(reinterpret_cast<const void *>(reinterpret_cast<std::uintptr_t>(&item) + 8192));
    if (const poly_3d *vertex = kx::vertex_of(item)) {
      put_vertex(*out.next(), *vertex);
    } else if (item.data && kx::is_point(item.datatype)) {
      const pnt_3d p = kx::read_point(item.data, item.datatype);
      put_vertex(*out.next(), {kx::read_seqnr(item.data, item.datatype), p.x, p.y, p.z});
    }
  }
}

// The cells of the grid, row by row. The result is the next face number.
std::int32_t write_cells(grid_writer &out, std::int32_t columns, std::int32_t rows) {
  std::int32_t number = 1;
  if (columns < 2) return number;
  for (std::int32_t r = 1; r < rows; ++r) {
    std::int32_t a = (r - 1) * columns;
    for (const std::int32_t end = a + columns - 1; a < end;) {
      grid_writer::run run = out.room(static_cast<std::size_t>(end - a));
      for (; run.count > 0; --run.count, ++run.at, ++a, ++number) {
        *run.at = {face_kind, number, {a, a + 1, a + 1 + columns, a + columns, 0, 0}};
      }
    }
  }
  return number;
}

// Writes a grid; what write_cells says, or 0 when the file cannot be opened. `whole`: whether nothing was lost.
std::int32_t write_grid(const list_hdr *points, std::int32_t columns, std::int32_t rows, const char *name,
                        const char *location, bool &whole) {
  grid_writer out(name, location);
  if (!out) return 0;
  *out.next() = {header_kind, rows, {columns, 0, 0, 0, 0, 0}};
  write_vertices(out, points);
  const std::int32_t next_number = write_cells(out, columns, rows);
  whole = out.close();
  return next_number;
}

class grid_reader {
 public:
  explicit grid_reader(const char *name) : file_(open_blocks(name, "rb", "kx_read_surface_file")) {}
  ~grid_reader() {
    if (file_) std::fclose(file_);
  }
  grid_reader(const grid_reader &) = delete;
  grid_reader &operator=(const grid_reader &) = delete;
  explicit operator bool() const { return file_ != nullptr; }

  // The next record; null at the end of the file.
  const grid_record *next() {
    if (place_ == filled_) {
      const std::size_t bytes = std::fread(block_, 1, sizeof block_, file_);
      place_ = 0;
      filled_ = bytes / sizeof(grid_record);
      if (bytes % sizeof(grid_record) != 0 || std::ferror(file_)) cut_off_ = true;
      if (filled_ == 0) return nullptr;
    }
    return &block_[place_++];
  }

  // Whether the file ended within a record, or could not be read to its end.
  bool cut_off() const { return cut_off_; }

 private:
  std::FILE *file_;
  bool cut_off_ = false;
  std::size_t place_ = 0, filled_ = 0;
  grid_record block_[block_records];
};

enum read_status : std::int32_t {
  done = 0,
  wrong_argument = 1,
  not_opened = 2,
  cut_off = 3,
  wrong_kind = 4,
  wrong_counts = 5,
  wrong_face = 6,
  no_memory = 80
};

// A grid on its way into a surface; freed with all its items unless it gets there.
struct grid {
  std::int32_t rows = 0, columns = 0;
  list_hdr vertices = {}, faces = {};
  pnt_3d low = {kx::empty_low, kx::empty_low, kx::empty_low};
  pnt_3d high = {kx::empty_high, kx::empty_high, kx::empty_high};

  grid() = default;
  grid(const grid &) = delete;
  grid &operator=(const grid &) = delete;
  ~grid() {
    kx::release_items(vertices);
    kx::dispose_faces(faces);
  }
};

read_status read_header(grid_reader &in, grid &g) {
  const grid_record *record = in.next();
  if (record == nullptr) return cut_off;
  if (record->kind != header_kind) return wrong_kind;
  g.rows = record->number;
  g.columns = record->data[0];
  const bool fits = g.rows > 0 && g.columns > 0 && std::int64_t{g.rows} * g.columns <= INT32_MAX;
  return fits ? done : wrong_counts;
}

read_status read_vertex(grid_reader &in, grid &g) {
  const grid_record *record = in.next();
  if (record == nullptr) return cut_off;
  if (record->kind != vertex_kind) return wrong_kind;
  poly_3d vertex;
  std::memcpy(&vertex, &record->number, sizeof vertex);
  const kx::vec3 p = kx::space::read(vertex);
  if (p.x < g.low.x) g.low.x = p.x;
  if (p.y < g.low.y) g.low.y = p.y;
  if (p.z < g.low.z) g.low.z = p.z;
  if (p.x > g.high.x) g.high.x = p.x;
  if (p.y > g.high.y) g.high.y = p.y;
  if (p.z > g.high.z) g.high.z = p.z;
  return kx::append_vertex(g.vertices, vertex.seqnr, p) ? done : no_memory;
}

read_status read_face(grid_reader &in, grid &g, const kx::vertex_table &table) {
  const grid_record *record = in.next();
  if (record == nullptr) return cut_off;
  if (record->kind != face_kind) return wrong_kind;
  if (record->number != g.faces.count + 1) return wrong_face;
  polyface_3d face = {};
  face.face_number = record->number;
  face.vertex_count = 4;
  for (int i = 0; i < 4; ++i) {
    const std::int32_t corner = record->data[i];
    if (corner < 0 || corner >= table.count()) return wrong_face;
    face.vertex_numbers[i] = corner;
  }
  vector_3d normal = {};
  table.normal(record->data[0], record->data[1], record->data[2], normal);
  face.normal = normal;
  return kx::append_face(g.faces, face) ? done : no_memory;
}

read_status read_grid(grid_reader &in, grid &g) {
  read_status status = read_header(in, g);
  const std::int32_t points = status == done ? g.rows * g.columns : 0;
  for (std::int32_t i = 0; i < points && status == done; ++i) status = read_vertex(in, g);
  if (status != done) return status;
  // Corners are places in the file, whatever numbers the vertices bear.
  kx::vertex_table table(points);
  if (!table) return no_memory;
  for (const list_item &item : kx::items(&g.vertices)) table.add(kx::space::read(*kx::vertex_of(item)));
  const std::int64_t cells = kx::grid_cells(g.columns, g.rows);
  for (std::int64_t i = 0; i < cells && status == done; ++i) status = read_face(in, g, table);
  if (status != done) return status;
  if (in.next() != nullptr) return wrong_counts;
  return in.cut_off() ? cut_off : done;
}

// Makes the surface the one of the grid; false, the surface as it was, without memory for a list that it lacks.
bool hand_over(grid &g, surface &s) {
  list_hdr *vertices = s.vertices ? s.vertices : ll_create_list();
  list_hdr *faces = !vertices || s.faces ? s.faces : ll_create_list();
  if (vertices == nullptr || faces == nullptr) {
    if (vertices != s.vertices) kx::release(vertices);
    return false;
  }
  kx_clear_surface(&s);
  kx::move_items(g.vertices, *vertices);
  kx::move_items(g.faces, *faces);
  surface read = {};
  read.surface_type = grid_surface;
  read.min_pnt = g.low;
  read.max_pnt = g.high;
  read.steps_u = g.columns - 1;
  read.steps_v = g.rows - 1;
  read.control_points = s.control_points;
  read.vertices = vertices;
  read.faces = faces;
  read.extra_list_1 = s.extra_list_1;
  read.extra_list_2 = s.extra_list_2;
  read.extra_list_3 = s.extra_list_3;
  s = read;
  return true;
}

}  // namespace

// What a full disk swallows is counted as written: hosts compare the result with the number of cells alone.
int32_t KX_CALL kx_create_surface_file(list_hdr *points, int32_t ncols, int32_t nrows, const char *filename) {
  if (kx::empty(points) || ncols == 0 || nrows == 0) return 0;
  if (kx::grid_cells(ncols, nrows) > kx::most_cells(points)) return 0;
  points->current = points->head;
  bool whole = false;
  return write_grid(points, ncols, nrows, filename, "kx_create_surface_file", whole);
}

int32_t KX_CALL kx_surfacemesh(const surface *s, const char *filename) {
  if (s == nullptr || kx::empty(s->vertices) || s->steps_u < 0 || s->steps_v < 0) return 0;
  const std::int64_t columns = std::int64_t{s->steps_u} + 1, rows = std::int64_t{s->steps_v} + 1;
  if (columns * rows != s->vertices->count) return 0;
  bool whole = false;
  const std::int32_t next_number =
      write_grid(s->vertices, s->steps_u + 1, s->steps_v + 1, filename, "kx_surfacemesh", whole);
  return whole ? next_number : 0;
}

int32_t KX_CALL kx_read_surface_file(const char *filename, surface *s) {
  if (filename == nullptr || s == nullptr) return wrong_argument;
  grid_reader in(filename);
  if (!in) return not_opened;
  grid g;
  const read_status status = read_grid(in, g);
  if (status != done) return status;
  return hand_over(g, *s) ? done : no_memory;
}
