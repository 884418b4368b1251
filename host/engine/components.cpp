// Components: see components.h.
#include "components.h"

#include "geometry/curveNode.h"
#include "mesh.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace tvxhost::engine {

namespace {

using Run = Components::Run;

int toInt(std::size_t count)
{
    return static_cast<int>(count);
}

int controlPointCount(const NurbsCurve& curve)
{
    // The last points of a periodic curve are its first ones again.
    const bool repeats = curve.form == NurbsCurve::Form::periodic;
    return repeats ? curve.spanCount() : toInt(curve.points.size());
}

int editPointCount(const NurbsCurve& curve)
{
    return curve.spanCount() + (curve.form == NurbsCurve::Form::open ? 1 : 0);
}

template <class Shape>
struct KindRow
{
    std::string_view kind;
    int (*count)(const Shape& shape);
};

constexpr KindRow<MeshData> kMeshKinds[] = {
    {"vtx", [](const MeshData& mesh) { return toInt(mesh.points.size()); }},
    {"e", [](const MeshData& mesh) { return toInt(mesh.edges.size()); }},
    {"f", [](const MeshData& mesh) { return toInt(mesh.faces.size()); }},
};

constexpr KindRow<NurbsCurve> kCurveKinds[] = {
    {"cv", controlPointCount},
    {"ep", editPointCount},
};

template <class Shape, std::size_t kRows>
std::optional<int> countIn(const KindRow<Shape> (&rows)[kRows], std::string_view kind, const Shape* shape)
{
    for (const KindRow<Shape>& row : rows)
        if (row.kind == kind)
            return shape ? row.count(*shape) : 0;
    return std::nullopt;
}

/// One term, such as "f[0:3]": its kind, and its run; no run for all that there are.
struct Term
{
    std::string_view kind;
    std::optional<Run> run;
};

bool readNumber(std::string_view& text, int& number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0)
        return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

std::optional<Term> parseTerm(std::string_view text)
{
    const std::size_t open = text.find('[');
    Term term{text.substr(0, open), std::nullopt};
    if (open == std::string_view::npos)
        return term;
    if (text.back() != ']')
        return std::nullopt;
    std::string_view numbers = text.substr(open + 1, text.size() - open - 2);
    if (numbers == "*")
        return term;
    Run run{};
    if (!readNumber(numbers, run.first))
        return std::nullopt;
    run.last = run.first;
    if (!numbers.empty() && numbers.front() == ':') {
        numbers.remove_prefix(1);
        if (!readNumber(numbers, run.last))
            return std::nullopt;
    }
    if (!numbers.empty())
        return std::nullopt;
    term.run = Run{std::min(run.first, run.last), std::max(run.first, run.last)};
    return term;
}

} // namespace

std::size_t Components::count() const
{
    std::size_t count = 0;
    for (const Run& run : m_runs)
        count += static_cast<std::size_t>(run.last - run.first) + 1;
    return count;
}

void Components::add(Run run)
{
    // Runs that touch the new one become part of it.
    const auto begin = std::lower_bound(m_runs.begin(), m_runs.end(), run.first - 1,
                                        [](const Run& other, int first) { return other.last < first; });
    auto end = begin;
    for (; end != m_runs.end() && end->first - 1 <= run.last; ++end)
        run = {std::min(run.first, end->first), std::max(run.last, end->last)};
    m_runs.insert(m_runs.erase(begin, end), run);
}

Components Components::joined(const Components& other) const
{
    std::vector<Run> runs;
    std::merge(m_runs.begin(), m_runs.end(), other.m_runs.begin(), other.m_runs.end(),
               std::back_inserter(runs), [](const Run& a, const Run& b) { return a.first < b.first; });
    Components all(m_kind);
    for (const Run& run : runs)
        all.add(run);
    return all;
}

Components Components::common(const Components& other) const
{
    Components both(m_kind);
    if (m_kind != other.m_kind)
        return both;
    for (auto a = m_runs.begin(), b = other.m_runs.begin(); a != m_runs.end() && b != other.m_runs.end();) {
        if (const Run run{std::max(a->first, b->first), std::min(a->last, b->last)}; run.first <= run.last)
            both.m_runs.push_back(run);
        if (a->last < b->last)
            ++a;
        else
            ++b;
    }
    return both;
}

Components Components::without(const Components& other) const
{
    if (m_kind != other.m_kind)
        return *this;
    Components rest(m_kind);
    auto gap = other.m_runs.begin();
    const auto end = other.m_runs.end();
    for (Run run : m_runs) {
        while (gap != end && gap->last < run.first)
            ++gap;
        // The last gap may reach into the next run too.
        for (; gap != end && gap->first <= run.last; ++gap) {
            if (gap->first > run.first)
                rest.m_runs.push_back({run.first, gap->first - 1});
            if (gap->last >= run.last)
                break;
            run.first = gap->last + 1;
        }
        if (gap == end || gap->first > run.last)
            rest.m_runs.push_back(run);
    }
    return rest;
}

std::vector<std::string> Components::texts() const
{
    std::vector<std::string> texts;
    for (const Run& run : m_runs) {
        std::string text = m_kind + '[' + std::to_string(run.first);
        if (run.last > run.first)
            text += ':' + std::to_string(run.last);
        texts.push_back(text + ']');
    }
    return texts;
}

std::optional<int> componentCount(DagNode& shape, std::string_view kind)
{
    if (shape.type().isA("mesh"))
        return countIn(kMeshKinds, kind, meshOf(shape));
    if (!shape.type().isA("nurbsCurve"))
        return std::nullopt;
    const std::optional<NurbsCurve> curve = curveOf(shape);
    return countIn(kCurveKinds, kind, curve ? &*curve : nullptr);
}

Components allComponents(DagNode& shape, const std::string& kind)
{
    Components all(kind);
    if (const int count = componentCount(shape, kind).value_or(0); count > 0)
        all.add({0, count - 1});
    return all;
}

std::optional<Components> parseComponents(DagNode& shape, std::string_view text)
{
    std::optional<Components> found;
    while (!text.empty()) {
        const std::size_t blank = std::min(text.find(' '), text.size());
        const std::optional<Term> term = parseTerm(text.substr(0, blank));
        text.remove_prefix(std::min(blank + 1, text.size()));
        if (!term || (found && found->kind() != term->kind))
            return std::nullopt;
        if (!found) {
            if (!componentCount(shape, term->kind))
                return std::nullopt;
            found.emplace(std::string(term->kind));
        }
        if (term->run)
            found->add(*term->run);
        else
            found = found->joined(allComponents(shape, found->kind()));
    }
    return found;
}

} // namespace tvxhost::engine
