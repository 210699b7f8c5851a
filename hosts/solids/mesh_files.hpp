// Meshes as files. All throw std::runtime_error when a file cannot be written.
#pragma once

#include <string>

#include "mesh.hpp"

namespace kxsolids {

// Faces as they are, corners counted from 1.
void write_obj(const std::string &path, const std::string &name, const mesh &m);
// Triangles.
void write_stl(const std::string &path, const std::string &name, const mesh &m, bool as_text);
// The library's own file, for surfaces.
void write_mesh(const std::string &path, const body &b);

}  // namespace kxsolids
