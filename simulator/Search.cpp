#include "simulator/Search.h"

#include <algorithm>
#include <deque>
#include <limits>
#include <map>
#include <unordered_set>
#include <utility>

#include "simulator/Influence.h"

namespace simulator {
namespace {

using program::Role;
using program::Unit;
using runtime::Machine;

constexpr Time day = Time{24} * 60 * 60 * 100;

void addPanel(const Unit& unit, Place place, std::vector<Act>& acts) {
  for (const program::Page& page : unit.pages) {
    for (const program::Button& button : page.buttons) {
      if (button.unit == program::none && button.preset == program::none) continue;
      acts.emplace_back(PressPage{place, page.name, button.id});
    }
  }
  if (!unit.pages.empty()) return;
  for (const std::string& output : unit.outputs) acts.emplace_back(PressPanel{place, output});
}

}  // namespace

std::vector<Act> actsOf(const runtime::Wiring& wiring) {
  std::vector<Act> acts;
  const auto& units = wiring.program().units;
  for (std::size_t i = 0; i < units.size(); ++i) {
    const auto place = static_cast<Place>(i);
    switch (wiring.role(place)) {
      case Role::receiver:
        for (const char* button :
             {"Power_On", "Power_Off", "Select_RGB", "Select_Composite_Video"}) {
          acts.emplace_back(PressReceiver{button});
        }
        break;
      case Role::panel:
        addPanel(units[i], place, acts);
        break;
      case Role::contact:
        acts.emplace_back(MoveContact{place, true});
        acts.emplace_back(MoveContact{place, false});
        break;
      case Role::motionDetector:
        acts.emplace_back(Motion{true});
        acts.emplace_back(Motion{false});
        break;
      case Role::monitoring:
        for (const std::string& output : units[i].outputs) acts.emplace_back(HelpDesk{output});
        break;
      default:
        break;
    }
  }
  return acts;
}

bool isEveryday(const Act& act, const program::Program& program) {
  if (const auto* press = std::get_if<PressPage>(&act)) {
    for (const program::Page& page : program.units[static_cast<std::size_t>(press->panel)].pages) {
      for (const program::Button& button : page.buttons) {
        if (button.id != press->object) continue;
        const bool isLock = button.command == "Lock" || button.command == "Unlock";
        return button.preset != program::none || (button.unit == program.receiver && !isLock);
      }
    }
  }
  return !std::holds_alternative<HelpDesk>(act);
}

namespace {

/// How a state was reached: by an act in another state. The first state has no act.
struct Way {
  static constexpr std::size_t start = std::numeric_limits<std::size_t>::max();

  std::size_t from = start;
  std::size_t act = 0;
  Time at = 0;
};

/// A state in which a person may act.
struct Node {
  runtime::State machine;
  Devices devices;
  HelpDeskView view;
  Way way;
};

class Hash {
 public:
  explicit Hash(std::size_t value) : value_(value) {}
  void add(std::size_t value) { value_ = (value_ ^ value) * 0x9E3779B97F4A7C15U; }
  std::size_t value() const { return value_; }

 private:
  std::size_t value_;
};

class Search {
 public:
  Search(const program::Program& program, bool isEverydayAlone)
      : wiring_(program),
        room_(wiring_),
        machine_(wiring_, room_, &trace_),
        truths_(machine_, room_),
        influence_(wiring_),
        acts_(actsOf(wiring_)) {
    std::erase_if(acts_, [&](const Act& act) {
      return !influence_.matters(act) || (isEverydayAlone && !isEveryday(act, program));
    });
  }

  SearchResult run(int depth) {
    isKept_ = depth > 0;
    guarded({}, [this] {
      machine_.start();
      follow({}, {});
    });
    std::size_t first = 0;
    for (int level = 1; level <= depth; ++level) {
      isKept_ = level < depth;
      const std::size_t end = nodes_.size();
      for (std::size_t node = first; node < end; ++node) {
        for (std::size_t act = 0; act < acts_.size(); ++act) tryAct(node, act);
      }
      first = end;
    }
    return result();
  }

 private:
  void tryAct(std::size_t from, std::size_t act) {
    const Node& node = nodes_[from];
    trace_.clear();
    machine_.setState(node.machine);
    room_.setDevices(node.devices);
    HelpDeskView view = node.view;
    truths_.watch(acts_[act], view);
    const Way way{from, act, machine_.now()};
    guarded(way, [&] {
      const bool wasForbidden = truths_.isForbidden() && !truths_.isSwitchedOn();
      perform(machine_, acts_[act]);
      if (wasForbidden && isPress(acts_[act]) && truths_.isSwitchedOn()) {
        add({Truth::contactForbids, Concern::lock, "the receiver is switched on"}, way);
      }
      follow(way, view);
    });
  }

  /// Lets time pass up to the rest, and keeps every state on the way in which an act may come.
  void follow(const Way& way, HelpDeskView view) {
    const Time end = machine_.now() + day;
    std::size_t seenLines = 0;
    look(way, view, seenLines);
    while (const auto next = machine_.nextEffect()) {
      if (*next > end)
        return add({Truth::comesToRest, Concern::endless, "it goes on for over a day"}, way);
      advance(*next - 1, way, view);
      machine_.advance(*next);
      look(way, view, seenLines);
      keep(way, view);
      if (const auto after = machine_.nextEffect(); after && *after > *next + 1) {
        advance(*next + 1, way, view);
      }
    }
    keep(way, view);
    for (Fault& fault : truths_.faultsAtRest(view)) add(std::move(fault), way);
  }

  /// Up to a time at which nothing is due.
  void advance(Time to, const Way& way, const HelpDeskView& view) {
    if (to <= machine_.now()) return;
    machine_.advance(to);
    keep(way, view);
  }

  void look(const Way& way, HelpDeskView& view, std::size_t& seenLines) {
    truths_.watch(trace_, seenLines, view);
    for (; seenLines < trace_.size(); ++seenLines) {
      if (auto fault = truths_.faultOf(trace_[seenLines])) add(std::move(*fault), way);
    }
  }

  void keep(const Way& way, const HelpDeskView& view) {
    if (!isKept_ || !seen_.insert(hashNow(view)).second) return;
    nodes_.push_back({machine_.state(), room_.devices(), view, way});
  }

  std::size_t hashNow(const HelpDeskView& view) const {
    const Devices& devices = room_.devices();
    Hash hash(machine_.state().hash(influence_.signals()));
    hash.add(static_cast<std::size_t>(devices.power) * 2 + (devices.hasMains ? 1 : 0));
    hash.add(std::hash<std::string_view>{}(devices.input));
    hash.add(static_cast<std::size_t>(devices.screen) * 4 + static_cast<std::size_t>(devices.lift));
    hash.add(static_cast<std::size_t>(view.isOn) * 4 + static_cast<std::size_t>(view.isLocked));
    hash.add(static_cast<std::size_t>(view.displayState + 1) * 2 + (view.hasLocked ? 1 : 0));
    return hash.value();
  }

  static bool isPress(const Act& act) {
    return std::holds_alternative<PressReceiver>(act) || std::holds_alternative<PressPage>(act) ||
           std::holds_alternative<PressPanel>(act);
  }

  /// The search goes from few acts to many, so the first way to a fault is a shortest.
  void add(Fault fault, const Way& way) { faults_.try_emplace(std::move(fault), way); }

  /// Work without an end is a fault like another.
  template <typename Work>
  void guarded(const Way& way, Work work) {
    try {
      work();
    } catch (const runtime::EndlessLoop& loop) {
      add({Truth::comesToRest, Concern::endless, loop.what()}, way);
    }
  }

  std::vector<Trial::Done> scriptOf(Way way) const {
    std::vector<Trial::Done> script;
    for (; way.from != Way::start; way = nodes_[way.from].way) {
      script.push_back({way.at, acts_[way.act]});
    }
    std::reverse(script.begin(), script.end());
    return script;
  }

  SearchResult result() const {
    SearchResult result;
    result.states = seen_.size();
    for (const auto& [fault, way] : faults_) result.findings.push_back({fault, scriptOf(way)});
    return result;
  }

  const runtime::Wiring wiring_;
  Room room_;
  runtime::Trace trace_;
  Machine machine_;
  Truths truths_;
  const Influence influence_;
  std::vector<Act> acts_;
  std::deque<Node> nodes_;
  std::unordered_set<std::size_t> seen_;
  std::map<Fault, Way> faults_;
  bool isKept_ = false;  // whether states are kept to act in them
};

}  // namespace

SearchResult search(const program::Program& program, int depth) {
  SearchResult result = Search(program, /*isEverydayAlone=*/true).run(depth);
  for (Finding& finding : result.findings) finding.isEveryday = true;
  const std::size_t everyday = result.findings.size();
  SearchResult all = Search(program, /*isEverydayAlone=*/false).run(depth);
  for (Finding& finding : all.findings) {
    const auto end = result.findings.begin() + static_cast<std::ptrdiff_t>(everyday);
    const auto isKnown = [&](const Finding& known) { return known.fault == finding.fault; };
    if (std::none_of(result.findings.begin(), end, isKnown)) {
      result.findings.push_back(std::move(finding));
    }
  }
  result.states = all.states;
  return result;
}

}  // namespace simulator
