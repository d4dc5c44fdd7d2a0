#include "circles.h"

#include "includes.h"

#include <set>

namespace mirtane::architecture {

namespace {

using Graph = std::map<std::string, std::set<std::string>>;

std::string placeOf(const std::string& path)
{
    return path.substr(0, path.rfind('.'));
}

// What each place includes of the house.
Graph graphOf(const std::map<std::string, std::string>& sources)
{
    Graph graph;
    for (const auto& [path, source] : sources) {
        const std::string from = placeOf(path);
        for (const Include& include : includesOf(source)) {
            const std::string to = placeOf(std::string(include.name));
            if (include.quoted && to != from) graph[from].insert(to);
        }
    }
    return graph;
}

// The places that can be reached from one.
std::set<std::string> reachedFrom(const Graph& graph, const std::string& start)
{
    std::set<std::string> reached;
    std::vector<std::string> open{start};
    while (!open.empty()) {
        const auto found = graph.find(open.back());
        open.pop_back();
        if (found == graph.end()) continue;
        for (const std::string& next : found->second) {
            if (reached.insert(next).second) open.push_back(next);
        }
    }
    return reached;
}

} // namespace

std::vector<std::string> circles(const std::map<std::string, std::string>& sources)
{
    const Graph graph = graphOf(sources);
    std::map<std::string, std::set<std::string>> reached;
    for (const auto& [place, to] : graph) reached[place] = reachedFrom(graph, place);
    std::vector<std::string> found;
    std::set<std::string> told;
    for (const auto& [place, places] : reached) {
        if (!places.contains(place) || told.contains(place)) continue;
        std::string sentence = "a circle:";
        for (const std::string& other : places) {
            const auto back = reached.find(other);
            if (back == reached.end() || !back->second.contains(place)) continue;
            told.insert(other);
            sentence += " " + other;
        }
        found.push_back(sentence);
    }
    return found;
}

} // namespace mirtane::architecture
