#include "platform/headless/search_component.h"

namespace nerida::headless {
namespace {

class Instance : public SearchComponent {
 public:
  explicit Instance(PreparedSearch& answers) : answers(answers) { answers.transcript.add("search component: create"); }
  ~Instance() override { answers.transcript.add("search component: release"); }
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  SearchResult search(std::string& query) override {
    answers.transcript.add("search component: search " + query);
    return answers.search(query);
  }
  CategoryList categories() override {
    answers.transcript.add("search component: categories");
    return answers.categories();
  }

 private:
  PreparedSearch& answers;
};

}  // namespace

std::unique_ptr<SearchComponent> PreparedSearch::create() {
  if (!installed) throw Error(error::cannotCreateObject);
  return std::make_unique<Instance>(*this);
}

}  // namespace nerida::headless
