// kxplates: pictures of what the library answers.
#include <cstring>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "plates.hpp"

int main(int count, char **arguments) {
  std::string folder = ".";
  if (count == 3 && std::strcmp(arguments[1], "-o") == 0) {
    folder = arguments[2];
  } else if (count != 1) {
    std::cerr
        << "usage: kxplates [-o FOLDER]\n"
           "Draws relationships, polygons, wireframes, curves and curve_tools, each as .svg and .png, into FOLDER (the "
           "current one without -o).\n";
    return 2;
  }
  try {
    std::filesystem::create_directories(folder);
    for (const kxplates::plate &plate : {kxplates::relationships(), kxplates::polygons(), kxplates::wireframes(),
                                         kxplates::curves(), kxplates::curve_tools()}) {
      kxplates::write_plate(folder, plate.name, plate.size, plate.paint);
      for (const std::string &line : plate.told) std::cout << plate.name << ": " << line << '\n';
    }
    return 0;
  } catch (const std::exception &error) {
    std::cerr << "kxplates: " << error.what() << '\n';
  }
  return 1;
}
