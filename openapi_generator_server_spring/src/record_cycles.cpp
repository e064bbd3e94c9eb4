#include "openapi_generator_server_spring/record_cycles.h"

#include <algorithm> // std::find, std::min
#include <utility>   // std::pair

namespace specloom::openapi_generator::server_spring {

/// Tarjan's strongly connected components (1972), with a stack of its own.
class RecordCycles::Search {
  public:
    explicit Search(RecordCycles& records)
        : records_(records), order_(records.components_.size(), 0), lowest_(records.components_.size(), 0) {
        records_.cycles_.assign(records.components_.size(), none);
    }

    void run() {
        for (std::size_t record = 0; record < order_.size(); ++record)
            if (order_[record] == 0)
                runFrom(record);
    }

  private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    struct Step {
        std::size_t record;
        std::size_t next; ///< of its components
    };

    void enter(std::size_t record) {
        order_[record] = lowest_[record] = ++entered_;
        open_.push_back(record);
        path_.push_back({record, 0});
    }

    void runFrom(std::size_t start) {
        enter(start);
        while (!path_.empty()) {
            Step& step = path_.back();
            const std::vector<std::size_t>& components = records_.components_[step.record];
            if (step.next < components.size())
                follow(step.record, components[step.next++]);
            else
                leave(step.record);
        }
    }

    void follow(std::size_t record, std::size_t component) {
        if (order_[component] == 0)
            enter(component);
        else if (records_.cycles_[component] == none)
            lowest_[record] = std::min(lowest_[record], order_[component]);
    }

    void leave(std::size_t record) {
        path_.pop_back();
        if (!path_.empty()) {
            std::size_t& above = lowest_[path_.back().record];
            above = std::min(above, lowest_[record]);
        }
        if (lowest_[record] != order_[record])
            return;
        const auto first = std::find(open_.rbegin(), open_.rend(), record).base() - 1;
        for (auto last = first; last != open_.end(); ++last)
            records_.cycles_[*last] = record;
        open_.erase(first, open_.end());
    }

    RecordCycles& records_;
    std::vector<std::size_t> order_;  ///< by record, from 1; 0 before it is entered
    std::vector<std::size_t> lowest_; ///< by record: the lowest order that it leads to
    std::size_t entered_ = 0;
    std::vector<std::size_t> open_; ///< entered, and of no cycle yet
    std::vector<Step> path_;
};

std::size_t RecordCycles::addRecord() {
    components_.emplace_back();
    return components_.size() - 1;
}

void RecordCycles::find() {
    Search(*this).run();
}

} // namespace specloom::openapi_generator::server_spring
