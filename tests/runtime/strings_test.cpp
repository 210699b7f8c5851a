#include "kxgeom/runtime.h"

#include <cstring>

#include "support/faults.hpp"

TEST(strings, copy) {
  char to[7] = "......";
  kx_strcpy(to, 4, "abcdef");
  EXPECT_EQ(std::memcmp(to, "abc\0..", 6), 0);
  kx_strcpy(to, 6, "x");
  EXPECT_EQ(std::memcmp(to, "x\0\0\0\0\0", 6), 0);
  kx_strfill(to, 6, 'b');
  for (int32_t none : {0, -1}) kx_strcpy(to, none, "a"), kx_strfill(to, none, 'a');
  EXPECT_STREQ(to, "bbbbbb");
  kx_strcpy(to, 4, nullptr);
  EXPECT_EQ(std::memcmp(to, "\0\0\0\0bb", 6), 0);
  std::strcpy(to, "abcde");
  kx_strcpy(to + 1, 5, to);
  EXPECT_STREQ(to, "aabcd");
}

TEST(strings, joining_onto_itself) {
  char to[16] = "ab";
  EXPECT_TRUE(kx_strcat(to, "cd") == 4 && kx_strcat(to, to) == 8 && kx_strcmp(to, "abcdabcd") == 1);
}

TEST(strings, padding_and_trimming) {
  const struct {
    const char *text;
    int size, mode, result;
    const char *expected;
  } rows[] = {
      {"ab", 5, 1, 2, "ab  "},      {"ab  ", 5, 0, 4, "ab"},   {"abcd", 5, 1, 4, "abcd"}, {"abcde", 5, 1, 5, "abcd"},
      {"abcdef", 5, 1, 5, "abcde"}, {"", 1, 1, 0, ""},         {"", 3, 1, 0, "  "},       {"abc", 0, 1, 0, ""},
      {"abc", -1, 1, 0, "abc"},     {"ab  cd", 4, 0, 4, "ab"}, {"   ", 9, 2, 3, ""},      {"a b ", 4, 7, 4, "a b"},
  };
  for (const auto &row : rows) {
    char text[16] = "";
    std::strcpy(text, row.text);
    EXPECT_EQ(kx_strmake(text, row.size, row.mode), row.result) << row.text << row.size;
    EXPECT_STREQ(text, row.expected) << row.text << row.size;
  }
}

TEST(strings, arrays) {
  const auto check = [](int failed, int n, char *array) {
    EXPECT_EQ(faults::messages(), std::vector<std::string>(failed != 0, "Memory Error: kx_create_char_array"));
    kx_strfill(array, n + 1, 'x');
    kx_purge_char_array(array);
  };
  EXPECT_EQ(faults::fail_each_allocation([] { return 5; }, kx_create_char_array, check), 1);
}
