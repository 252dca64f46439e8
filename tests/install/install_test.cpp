// What an installation brings, and that it is of one piece: the entry of the menu starts a program
// that is there, each program has its page, and nobody but the owner can change anything.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

class InstallTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    std::string path = (fs::temp_directory_path() / "bkconf-install-XXXXXX").string();
    ASSERT_NE(mkdtemp(path.data()), nullptr);
    prefix = path;
    const std::string command =
        CMAKE_PROGRAM " --install " BUILD_DIRECTORY " --prefix " + path + " >/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0);
  }
  static void TearDownTestSuite() { fs::remove_all(prefix); }

  static std::string ContentOf(const std::string& name) {
    std::ifstream in(prefix / name, std::ios::binary);
    EXPECT_TRUE(in) << name;
    return {std::istreambuf_iterator<char>(in), {}};
  }
  static std::set<std::string> NamesIn(const std::string& directory) {
    std::set<std::string> names;
    for (const auto& each : fs::directory_iterator(prefix / directory)) {
      names.insert(each.path().filename().string());
    }
    return names;
  }
  /// The value of a line "name=value".
  static std::string ValueOf(const std::string& name, const std::string& content) {
    const auto start = content.find("\n" + name + "=");
    if (start == std::string::npos) return "";
    const auto value = start + name.size() + 2;
    return content.substr(value, content.find('\n', value) - value);
  }

  inline static fs::path prefix;
};

const std::set<std::string> Programs = {"bkconf", "bkconf_setup", "bkconf_virtual_module"};

TEST_F(InstallTest, BringsItsProgramsAndAPageForEach) {
  EXPECT_EQ(NamesIn("bin"), Programs);
  std::set<std::string> pages;
  for (const std::string& program : Programs) pages.insert(program + ".1.gz");
  EXPECT_EQ(NamesIn("share/man/man1"), pages);
}

TEST_F(InstallTest, EveryProgramStarts) {
  for (const std::string& program : Programs) {
    const std::string command = (prefix / "bin" / program).string() + " --help >/dev/null 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0) << program;
  }
}

TEST_F(InstallTest, BringsPicturesManualsAndTheDemoHouse) {
  constexpr std::size_t modules = 11;
  EXPECT_EQ(NamesIn("share/bkconf/demo").size(), modules);
  EXPECT_FALSE(NamesIn("share/bkconf/pictures").empty());
  // Each manual is there in both languages.
  std::set<std::string> dutch;
  std::set<std::string> french;
  for (const std::string& name : NamesIn("share/bkconf/manuals")) {
    const auto end = name.rfind('.') - 2;
    (name.substr(end, 2) == "nl" ? dutch : french).insert(name.substr(0, end));
  }
  EXPECT_FALSE(dutch.empty());
  EXPECT_EQ(dutch, french);
}

TEST_F(InstallTest, NobodyButTheOwnerCanChangeAnything) {
  for (const auto& each : fs::recursive_directory_iterator(prefix)) {
    const fs::perms others = fs::perms::group_write | fs::perms::others_write;
    EXPECT_EQ(fs::status(each).permissions() & others, fs::perms::none) << each.path();
  }
}

TEST_F(InstallTest, ADoubleClickOnAFileOpensIt) {
  const std::string entry = ContentOf("share/applications/bkconf.desktop");
  EXPECT_EQ(ValueOf("Exec", entry), "bkconf %f");
  const std::string type = ValueOf("MimeType", entry);
  EXPECT_EQ(type, "application/x-bkconf;");
  const std::string types = ContentOf("share/mime/packages/bkconf.xml");
  EXPECT_NE(types.find("<mime-type type=\"application/x-bkconf\">"), std::string::npos);
  for (const char* pattern : {"*.BK1", "*.bk1"}) {
    EXPECT_NE(types.find(pattern), std::string::npos) << pattern;
  }
  EXPECT_TRUE(
      fs::exists(prefix / "share/icons/hicolor/scalable/apps" / (ValueOf("Icon", entry) + ".svg")));
}

TEST_F(InstallTest, ItsDescriptionNamesTheProgramAndTheEntryOfTheMenu) {
  const std::string description = ContentOf("share/metainfo/bkconf.metainfo.xml");
  for (const char* part :
       {"<binary>bkconf</binary>", "bkconf.desktop</launchable>", "application/x-bkconf"}) {
    EXPECT_NE(description.find(part), std::string::npos) << part;
  }
  EXPECT_NE(description.find("release version=\"" PROGRAM_VERSION "\""), std::string::npos)
      << "the description does not know this version";
}

TEST_F(InstallTest, TheUserAtTheMachineGetsAtTheAdapterAndModemProbesDoNot) {
  const std::string rules = ContentOf("lib/udev/rules.d/60-bkconf.rules");
  for (const char* part : {"TAG+=\"uaccess\"", "ENV{ID_MM_PORT_IGNORE}=\"1\"", "ttyUSB"}) {
    EXPECT_NE(rules.find(part), std::string::npos) << part;
  }
}

}  // namespace
