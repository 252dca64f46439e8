#include "end_to_end/special_stage.h"

#include <fstream>

#include "end_to_end/image_lines.h"

namespace end_to_end {

void SpecialStage::ConnectTo(int kind, const std::string& demoFile, const Captions& language,
                             const std::map<int, int>& changes) {
  LayOutDirectory(language);
  const std::vector<std::string> lines = WithCells(LinesOf(ContentOf(DemoFile(demoFile))), changes);
  const std::filesystem::path memory = scratch() / "memory.BK1";
  std::ofstream(memory, std::ios::binary) << Text(lines);
  kindLine_ = lines.front();
  cells().clear();
  for (std::size_t i = 1; i < lines.size(); ++i) cells().push_back(std::stoi(lines[i]));
  StartModule(kind, {"--image", memory.string(), "--save", savedImage().string()});
  StartTool();
  ConnectAndRead();
}

void SpecialStage::OpenScreen(std::string_view button, std::string_view title) {
  ClickOn("push button", button);
  AwaitWindow(title);
}

void SpecialStage::SetButtonByMouse(std::string_view title, int button) {
  const bool isDutch = &captions() == &dutch;
  const auto first = [&](std::string_view label) {
    return ListPlace{label, captions().firstFunction};
  };
  OpenScreen(captions().buttons, title);
  PickItem({captions().buttonChooser}, button - 1, std::to_string(button));
  PickItem(first("Module:"), 0, "A");
  AwaitListText(first("Type:"), isDutch ? "Module type?" : "Type module?");
  PickItem(first("Type:"), 0, isDutch ? "Relaismodule" : "Module relais");
  PickItem(first(isDutch ? "Uitgang:" : "Sortie:"), 4, "5");
  PickItem(first(captions().action), 1, isDutch ? "Aan" : "ON");
  ClickOn("push button", captions().store);
  AwaitCell(captions().buttonRow + std::to_string(button), captions().firstColumn, "A0501");
  LeaveByButton(title);
}

void SpecialStage::SetButtonByKeyboard(std::string_view title, int button) {
  const bool isDutch = &captions() == &dutch;
  const char* context = isDutch ? "Sfeer" : "Contexte";
  const std::string numbers = std::string(context) + ":";
  const auto first = [&](std::string_view label) {
    return ListPlace{label, captions().firstFunction};
  };
  PressButton(captions().buttons);
  AwaitWindow(title);
  StepInList({captions().buttonChooser}, button - 1, std::to_string(button));
  StepInList(first("Module:"), 18, "S");
  AwaitListText(first("Type:"), context);
  StepInList(first(numbers), 6, "7");
  desktop().Press({"Return"});
  AwaitCell(captions().buttonRow + std::to_string(button), captions().firstColumn, "S0702");
  LeaveScreen(title);
  AwaitWindow(programName);
}

void SpecialStage::ExpectButton(std::string_view title, int button, std::string_view code,
                                std::string_view mainTitle) {
  OpenScreen(captions().buttons, title);
  AwaitCell(captions().buttonRow + std::to_string(button), captions().firstColumn, code);
  LeaveByButton(title, mainTitle);
}

void SpecialStage::ExpectLines(const std::filesystem::path& file,
                               const std::map<int, std::string>& texts) {
  const std::vector<std::string> lines = LinesOf(ContentOf(file));
  ASSERT_EQ(lines.size(), cells().size() + 1);
  EXPECT_EQ(lines.front(), kindLine_);
  for (std::size_t cell = 0; cell < cells().size(); ++cell) {
    const auto text = texts.find(static_cast<int>(cell));
    EXPECT_EQ(lines[cell + 1], text == texts.end() ? " " + std::to_string(cells()[cell]) + " \r\n"
                                                   : text->second + "\r\n")
        << "cell " << cell;
  }
}

}  // namespace end_to_end
