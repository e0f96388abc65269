// One engine running file after file must give what a fresh engine gives for
// each: nothing a subject keeps may leak into the next run.
#include <gtest/gtest.h>

#include <algorithm>

#include "frame/converter.h"
#include "test_support.h"

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> GoldenModels() {
  std::vector<fs::path> models;
  for (const auto& entry : fs::directory_iterator(fs::path(QUILLMESH_TEST_DIR) / "golden"))
    if (fs::exists(entry.path() / "model.s2k") && !fs::exists(entry.path() / "stop"))
      models.push_back(entry.path() / "model.s2k");
  std::sort(models.begin(), models.end());
  return models;
}

struct Result {
  int code;
  std::vector<std::string> messages;
  std::string output;
};

Result RunOn(CS2kConverter& engine, RecordingUserInterface& ui, const TempFolder& folder, const fs::path& model) {
  fs::copy_file(model, folder / "model.s2k", fs::copy_options::overwrite_existing);
  fs::remove(folder / "model.tvt");
  ui.messages.clear();
  int code = engine.Run((folder / "model.s2k").string());
  std::string output = fs::exists(folder / "model.tvt") ? ReadFile(folder / "model.tvt") : "";
  return {code, ui.messages, output};
}

TEST(EngineReuse, EachRunGivesWhatAFreshEngineGives) {
  const std::vector<fs::path> models = GoldenModels();
  ASSERT_GT(models.size(), 20u);
  TempFolder folder;
  RecordingUserInterface reusedUi;
  CS2kConverter reused(reusedUi);
  // Forwards and backwards, so that each model follows a different one.
  std::vector<fs::path> order = models;
  order.insert(order.end(), models.rbegin(), models.rend());
  for (const fs::path& model : order) {
    Result again = RunOn(reused, reusedUi, folder, model);
    RecordingUserInterface freshUi;
    CS2kConverter fresh(freshUi);
    Result first = RunOn(fresh, freshUi, folder, model);
    EXPECT_EQ(first.code, again.code) << model;
    EXPECT_EQ(first.messages, again.messages) << model;
    EXPECT_EQ(first.output, again.output) << model;
  }
}

}  // namespace
