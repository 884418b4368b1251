// A circle drawn by the drawing library, and by the same calls from an array.
#include "rendering/tvxDrawing.h"
#include "rendering/tvxGL.h"
#include "rows.h"
#include "viewport/frameBuffer.h"
#include "viewport/glContext.h"

#include <benchmark/benchmark.h>

#include <GL/glext.h>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tvxbench {
namespace {

using tvxhost::viewport::FrameBuffer;
using tvxhost::viewport::GlContext;

constexpr float kRadius = 0.5f;

/// Where both sides draw. Nothing is rasterised, which would cost both the same and hide the difference.
class Canvas
{
public:
    Canvas()
    {
        auto context = GlContext::create();
        if (!context)
            throw std::runtime_error(context.outcome.text);
        m_context = std::move(context.value);
        auto buffer = FrameBuffer::create(16, 16, m_context->largestSide());
        if (!buffer)
            throw std::runtime_error(buffer.outcome.text);
        m_buffer = std::move(buffer.value);
        glEnable(GL_RASTERIZER_DISCARD);
    }

private:
    std::unique_ptr<GlContext> m_context;
    std::unique_ptr<FrameBuffer> m_buffer;
};

void circle(benchmark::State& state, unsigned int segments)
{
    const Canvas canvas;
    for (auto _ : state)
        tarvox::crowd::drawCircle(kRadius, segments);
    glFinish();
}

struct Vertex
{
    float x, y, z;
};

std::vector<Vertex> circleVertices(unsigned int segments)
{
    std::vector<Vertex> vertices;
    for (unsigned int k = 0; k < segments; ++k) {
        const float angle = static_cast<float>(k) * 6.2831855f / static_cast<float>(segments);
        vertices.push_back({kRadius * std::cos(angle), 0, kRadius * std::sin(angle)});
    }
    return vertices;
}

void array(benchmark::State& state, unsigned int segments)
{
    const Canvas canvas;
    const std::vector<Vertex> vertices = circleVertices(segments);
    for (auto _ : state) {
        glBegin(GL_LINE_LOOP);
        for (const Vertex& vertex : vertices)
            glVertex3f(vertex.x, vertex.y, vertex.z);
        glEnd();
    }
    glFinish();
}

Row rowOf(unsigned int segments)
{
    const std::string count = std::to_string(segments);
    benchmark::RegisterBenchmark(("circle_" + count).c_str(), circle, segments)->MinTime(0.05);
    benchmark::RegisterBenchmark(("vertices_" + count).c_str(), array, segments)->MinTime(0.05);
    return {"drawCircle of " + count + " segments", "the same glVertex3f calls from an array",
            "circle_" + count, "vertices_" + count, 1.10};
}

} // namespace

std::vector<Row> circleRows()
{
    std::vector<Row> rows;
    for (const unsigned int segments : {12u, 64u, 360u})
        rows.push_back(rowOf(segments));
    return rows;
}

} // namespace tvxbench
