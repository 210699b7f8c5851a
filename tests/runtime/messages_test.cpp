#include "kxgeom/runtime.h"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

namespace {

using texts = std::vector<std::string>;

texts shown(const char *code, int32_t number, const char *location) {
  faults::clear_messages();
  kx_display_msg(code, number, location);
  return faults::messages();
}

using answer = std::pair<int32_t, std::string>;

answer message(int32_t number) {
  char buffer[144] = "untouched";
  const int32_t result = kx_get_message(number, buffer);
  return {result, buffer};
}

}  // namespace

TEST(messages, memory_error) {
  faults::clear_messages();
  EXPECT_EQ(kx_memerr("kx_convexhull - polyrec"), 1);
  kx_memerr(nullptr);
  kx_memerr(std::string(400, 'x').c_str());
  EXPECT_EQ(faults::messages(), (texts{"Memory Error: kx_convexhull - polyrec",
                                       "Memory Error: ", "Memory Error: " + std::string(241, 'x')}));
}

TEST(messages, box_has_code_and_location_but_not_the_text) {
  const message_folder folder("0 none\nBADCNT\nBADDEG\ttext\nbadparms small\nBADPARMS  text\nBADPARMS again");
  EXPECT_EQ(shown("BADPARMS", 23, "kx_secant"), texts{"BADPARMS&msgrec[i]\nLocation: kx_secant Error Nr: 23"});
  EXPECT_EQ(shown("BADDEG", -1, nullptr), texts{"BADDEG&msgrec[i]\nLocation:  Error Nr: -1"});
  for (const char *code : {"BADCNT", "BADPARM", "BadParms", static_cast<const char *>(nullptr)})
    EXPECT_EQ(shown(code, 33, "no such key"), texts{});
  const std::string cut = "BADDEG&msgrec[i]\nLocation: " + std::string(228, 'x');
  EXPECT_EQ(shown("BADDEG", 1, std::string(300, 'x').c_str()), texts{cut});
}

TEST(messages, long_lines_continue_as_lines_of_their_own) {
  const message_folder folder("A " + std::string(123, 'a') + "7 " + std::string(126, 'b') + "B KEY\n7 B\n");
  EXPECT_EQ(shown("B", 1, "x").size(), 0u);  // character 253 of the first piece
  EXPECT_EQ(message(7), (answer{7, "(7): B\n"}));
  const message_folder other(std::string(253, '-') + " -KEY text\n" + std::string(125, '-') + " -8 rest\n");
  EXPECT_EQ(shown("KEY", 1, "x").size(), 1u);
  EXPECT_TRUE(message(8) == answer(8, "(8): rest\n") && message(-8) == answer(0, "(0): "));
}

TEST(messages, numbers_are_converted_leniently_and_zero_stands_in) {
  const message_folder folder("-2 \t minus\n+3x three\n 5 zero\n99999999999 huge\n4\n6\t\n7 last");
  EXPECT_TRUE(message(-2) == answer(-2, "(-2): minus\n") && message(3) == answer(3, "(3): three\n"));
  EXPECT_EQ(message(4), (answer{0, "(0): 5 zero\n"}));  // a line without blank has no key, a leading blank ends it
  EXPECT_TRUE(message(6) == answer(6, "(6): \n") && message(7) == answer(7, "(7): last"));
  EXPECT_EQ(message(INT32_MAX), (answer{INT32_MAX, "(2147483647): huge\n"}));
  const message_folder without_zero("1 one\n");
  EXPECT_EQ(message(7), (answer{-1, "(7) Cannot Find Message"}));
}

TEST(messages, no_file_or_no_memory_for_its_path) {
  const message_folder folder;
  const answer missing{-1, "(7) Cannot Find Message File"};
  faults::watch(1);
  EXPECT_EQ(message(7), missing);
  EXPECT_TRUE(faults::unwatch());
  EXPECT_EQ(shown("BADPARMS", 23, "x").size(), 1u);
  faults::watch(1);
  EXPECT_EQ(shown("BADPARMS", 23, "x").size(), 0u);
  EXPECT_TRUE(faults::unwatch());
  const auto here = std::filesystem::current_path();
  std::filesystem::current_path(folder.path / "MSG");
  message_folder::set_link((folder.path / "none").string());
  EXPECT_TRUE(message(7) == missing && shown("BADPARMS", 23, "x").empty());  // though the current directory has one
  message_folder::set_link("");
  EXPECT_EQ(shown("BADPARMS", 23, "x").size(), 1u);
  std::filesystem::remove(folder.file());
  EXPECT_EQ(message(7), missing);
  std::filesystem::create_directory(folder.file());
  // a folder of that name can be opened on some systems, and must not be read for ever
  EXPECT_EQ(message(7).first, -1);
  std::filesystem::current_path(here);
}

TEST(messages, delivered_file) {
  const message_folder folder;
  EXPECT_EQ(shown("SPHRPHI", 0, "x").size(), 1u);
  for (int32_t number : {0, 1, 4, 23, 25, 33, 42, 52, 59, 60, 74, 75, 80}) EXPECT_EQ(message(number).first, number);
  EXPECT_EQ(message(-1).second.substr(0, 24), "(0): There is no message");
}
