#include <gtest/gtest.h>

#include <cstring>

#include "kxgeom/runtime.h"
#include "support/message_folder.hpp"

TEST(files, blocks) {
  const message_folder folder("");
  const std::string name = folder.file().string();
  const auto size = [&] { return std::filesystem::file_size(folder.file()); };
  char bytes[100] = "hello", back[100] = "";
  void *file = kx_open_file(name.c_str(), "wb+");
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(kx_write_file(file, bytes, 100), 100);
  EXPECT_EQ(size(), 0u);  // still in the buffer
  EXPECT_EQ(kx_seek_file(file, 40, 0), 0);
  EXPECT_EQ(size(), 100u);  // flushed before the move
  EXPECT_EQ(kx_read_file(file, back, 100), 0);
  EXPECT_EQ(kx_seek_file(file, -100, 2) + kx_seek_file(file, 1, 1), 0);
  EXPECT_EQ(kx_read_file(file, back, 4), 4);
  EXPECT_STREQ(back, "ello");
  EXPECT_EQ(kx_read_file(file, back, -1) + kx_write_file(file, bytes, -1), 0);
  EXPECT_TRUE(kx_seek_file(file, -1, 0) != 0 && kx_seek_file(file, 0, 3) == -1 && kx_seek_file(file, 0, 2) == 0);
  EXPECT_TRUE(kx_write_file(file, bytes, 7) == 7 && kx_flush_file(file) == 0 && size() == 107);
  EXPECT_EQ(kx_close_file(file), 0);

  file = kx_open_file(name.c_str(), "rb");
  EXPECT_TRUE(kx_write_file(file, bytes, 1) == 0 && kx_flush_file(file) == -1);
  kx_close_file(file);  // its result after an error is the platform's own

  EXPECT_EQ(kx_open_file("no-folder/no-file", "rb"), nullptr);
}
