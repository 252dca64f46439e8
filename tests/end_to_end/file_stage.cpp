#include "end_to_end/file_stage.h"

#include "end_to_end/deadline.h"

namespace end_to_end {

void FileStage::OpenSaveScreen() {
  ClickOnEntry(captions().fileMenu, captions().saveAsEntry);
  AwaitWindow(captions().saveTitle);
  AwaitText(directory().string());
}

void FileStage::AwaitName(const std::string& name) {
  std::string content;
  const bool stands = WaitFor([&] {
    content = Await("text", captions().fileName).content;
    return content == name;
  });
  EXPECT_TRUE(stands) << "in the field of the name there is \"" << content << "\"";
}

void FileStage::TypeName(const std::string& name) {
  ClickOn("text", captions().fileName);
  desktop().Type(name);
  AwaitName(name);
}

void FileStage::PressSave() {
  ClickOn("push button", captions().saveButton);
  AwaitGone("frame", captions().saveTitle);
}

std::filesystem::path FileStage::SaveAs(const std::string& name) {
  OpenSaveScreen();
  TypeName(name);
  PressSave();
  std::filesystem::path file = directory() / (name + ".BK1");
  AwaitWindow(TitleOf(file));
  return file;
}

void FileStage::OpenOpenScreen() {
  ClickOnEntry(captions().fileMenu, captions().openEntry);
  AwaitWindow(captions().openTitle);
  AwaitText(directory().string());
}

void FileStage::ChooseFile(const std::string& name, bool byDoubleClick) {
  const std::string path = (directory() / name).string();
  ClickOn("list item", name);
  AwaitText(path);
  if (byDoubleClick) {
    // Elsewhere: three clicks in the same place would be a double click already with the second,
    // and the third would go to what the window lay over.
    ClickOn("label", path);
    DoubleClickOn("list item", name);
  } else {
    ClickOn("push button", captions().openButton);
  }
}

void FileStage::OpenFile(const std::string& name, bool byDoubleClick) {
  OpenOpenScreen();
  ChooseFile(name, byDoubleClick);
  AwaitGone("frame", captions().openTitle);
  AwaitWindow(TitleOf(directory() / name));
}

}  // namespace end_to_end
