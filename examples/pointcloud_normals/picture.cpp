#include "picture.h"

#include "normals.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>

namespace
{

constexpr int panelWidth = 640, panelHeight = 560, chartWidth = 400, captionHeight = 44;
constexpr int pictureWidth = 2 * panelWidth + chartWidth, pictureHeight = panelHeight + captionHeight;

struct Colour
{
    double r, g, b;
};
constexpr Colour background{0.09, 0.10, 0.13}, ink{0.86, 0.88, 0.91}, accent{0.98, 0.69, 0.25}, other{0.42, 0.51, 0.62};

// Pixels with the depth of what they show.
class Panel
{
public:
    Panel() : depth(static_cast<size_t>(panelWidth) * panelHeight, std::numeric_limits<float>::max())
    {
        pixels.assign(depth.size(), packed(background));
    }
    void splat(const float (&p)[3], int radius, Colour colour)
    {
        if (!(p[0] >= 0 && p[0] < panelWidth && p[1] >= 0 && p[1] < panelHeight && p[2] >= 0 && p[2] <= 1)) return;
        const int x0 = static_cast<int>(p[0]), y0 = static_cast<int>(p[1]);
        for (int y = std::max(y0 - radius, 0); y <= std::min(y0 + radius, panelHeight - 1); ++y)
            for (int x = std::max(x0 - radius, 0); x <= std::min(x0 + radius, panelWidth - 1); ++x)
            {
                if ((x - x0) * (x - x0) + (y - y0) * (y - y0) > radius * radius + 1) continue;
                const size_t at = static_cast<size_t>(y) * panelWidth + static_cast<size_t>(x);
                if (p[2] >= depth[at]) continue;
                depth[at] = p[2];
                pixels[at] = packed(colour);
            }
    }
    std::vector<uint32_t> pixels;

private:
    std::vector<float> depth;

    static uint32_t packed(Colour c)
    {
        auto byte = [](double x) { return static_cast<uint32_t>(std::lround(255 * std::clamp(x, 0.0, 1.0))); };
        return byte(c.r) << 16 | byte(c.g) << 8 | byte(c.b);
    }
};

// Where the points lie on a panel, and their depth.
std::vector<float> projected(const Points& points, const View& view)
{
    float at[3];
    for (int a = 0; a < 3; ++a) at[a] = view.eye[a] + view.forward[a];
    // What the points fill of the plane at distance 1, and how far they reach.
    float nearest = std::numeric_limits<float>::max(), farthest = 0, left = 0, right = 0, bottom = 0, top = 0;
    for (int n = 0; n < points.count(); ++n)
    {
        float depth = 0, x = 0, y = 0;
        for (int a = 0; a < 3; ++a)
        {
            const float d = points.at(n)[a] - view.eye[a];
            depth += view.forward[a] * d, x += view.right[a] * d, y += view.up[a] * d;
        }
        nearest = std::min(nearest, depth), farthest = std::max(farthest, depth);
        left = std::min(left, x / depth), right = std::max(right, x / depth);
        bottom = std::min(bottom, y / depth), top = std::max(top, y / depth);
    }
    // A frame around it, of the panel's proportions.
    constexpr float aspect = static_cast<float>(panelWidth) / panelHeight;
    const float height = 1.06f * std::max({top - bottom, (right - left) / aspect, 1e-6f});
    const float near = 0.9f * nearest, x = (left + right) / 2, y = (bottom + top) / 2;
    float world[16], camera[16], perspective[16];
    std::vector<float> screen(points.xyz.size());
    require(zepmIdentity_m4_32f(world), "zepmIdentity_m4_32f");
    require(zepmLookAtRH_m4_32f(view.eye, at, view.up, camera), "zepmLookAtRH_m4_32f");
    require(zepmPerspectiveOffCenterRH_m4_32f((x - aspect * height / 2) * near, (x + aspect * height / 2) * near,
                                              (y - height / 2) * near, (y + height / 2) * near, near, 1.01f * farthest,
                                              perspective),
            "zepmPerspectiveOffCenterRH_m4_32f");
    require(zepmProject_m4v3a_32f(perspective, camera, world, points.xyz.data(), 12, panelWidth, panelHeight, 0, 1,
                                  screen.data(), 12, points.count()),
            "zepmProject_m4v3a_32f");
    return screen;
}

// A warm light from behind the viewer's right shoulder, a cold one from the left.
Colour shade(const float* normal, const View& view)
{
    auto lit = [&](float right, float up, float back) {
        float sum = 0;
        for (int a = 0; a < 3; ++a)
            sum += normal[a] * (right * view.right[a] + up * view.up[a] - back * view.forward[a]);
        return static_cast<double>(std::max(0.f, sum / std::sqrt(right * right + up * up + back * back)));
    };
    const double key = lit(0.7f, 0.6f, 0.5f), fill = lit(-0.9f, 0.3f, 0.4f);
    return {0.08 + 0.85 * key + 0.16 * fill, 0.08 + 0.76 * key + 0.24 * fill, 0.10 + 0.60 * key + 0.42 * fill};
}

class Canvas
{
public:
    Canvas()
        : surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, pictureWidth, pictureHeight), cairo_surface_destroy),
          cairo(cairo_create(surface.get()), cairo_destroy)
    {
        fill(0, 0, pictureWidth, pictureHeight, background);
        cairo_select_font_face(cairo.get(), "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    }
    void put(Panel& panel, int x)
    {
        const std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> image(
            cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(panel.pixels.data()),
                                                CAIRO_FORMAT_RGB24, panelWidth, panelHeight, 4 * panelWidth),
            cairo_surface_destroy);
        cairo_set_source_surface(cairo.get(), image.get(), x, 0);
        cairo_paint(cairo.get());
    }
    void fill(double x, double y, double width, double height, Colour colour)
    {
        use(colour);
        cairo_rectangle(cairo.get(), x, y, width, height);
        cairo_fill(cairo.get());
    }
    void text(double x, double y, double size, const std::string& words, Colour colour = ink)
    {
        use(colour);
        cairo_set_font_size(cairo.get(), size);
        cairo_move_to(cairo.get(), x, y);
        cairo_show_text(cairo.get(), words.c_str());
    }
    void save(const std::string& path)
    {
        const cairo_status_t status = cairo_surface_write_to_png(surface.get(), path.c_str());
        if (status != CAIRO_STATUS_SUCCESS) throw std::runtime_error(path + ": " + cairo_status_to_string(status));
    }

private:
    std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> surface;
    std::unique_ptr<cairo_t, void (*)(cairo_t*)> cairo;

    void use(Colour colour) { cairo_set_source_rgb(cairo.get(), colour.r, colour.g, colour.b); }
};

void drawBars(Canvas& canvas, const std::vector<Bar>& bars, const std::string& note)
{
    constexpr double x = 2 * panelWidth + 24, width = chartWidth - 48, step = 78;
    double longest = 0;
    for (const Bar& bar : bars) longest = std::max(longest, bar.nanoseconds);
    canvas.text(x, 44, 19, "Eigenvalues and vectors, 3 by 3");
    canvas.text(x, 66, 14, "nanoseconds a matrix, same matrices, same run", other);
    double y = 100;
    for (const Bar& bar : bars)
    {
        const bool ours = bar.label.starts_with("zepm");
        canvas.text(x, y + 14, 15, bar.label + ":  " + std::to_string(std::lround(bar.nanoseconds)) + " ns");
        canvas.fill(x, y + 22, std::max(2.0, width * bar.nanoseconds / longest), 22, ours ? accent : other);
        y += step;
    }
    canvas.text(x, y + 14, 12, note, other);
}

} // namespace

View viewOf(const Points& points)
{
    float low[3], high[3];
    for (int a = 0; a < 3; ++a) low[a] = high[a] = points.at(0)[a];
    for (int n = 0; n < points.count(); ++n)
        for (int a = 0; a < 3; ++a)
        {
            low[a] = std::min(low[a], points.at(n)[a]);
            high[a] = std::max(high[a], points.at(n)[a]);
        }
    float diagonal = 0, middle[3];
    for (int a = 0; a < 3; ++a)
    {
        middle[a] = (low[a] + high[a]) / 2;
        diagonal += (high[a] - low[a]) * (high[a] - low[a]);
    }
    const float distance = std::max(std::sqrt(diagonal), 1e-6f) * 1.12f;
    const float from[3] = {0.74f, -0.52f, 0.42f}; // of unit length
    View view{};
    const float up[3] = {0, 0, 1};
    for (int a = 0; a < 3; ++a)
    {
        view.eye[a] = middle[a] + distance * from[a];
        view.forward[a] = -from[a];
    }
    require(zepmCrossProduct_v3_32f(view.forward, up, view.right), "zepmCrossProduct_v3_32f");
    require(zepmNormalize_v3_32f(view.right, view.right), "zepmNormalize_v3_32f");
    require(zepmCrossProduct_v3_32f(view.right, view.forward, view.up), "zepmCrossProduct_v3_32f");
    return view;
}

void savePicture(const std::string& path, const Points& points, const View& view, const std::vector<float>& normals,
                 const std::vector<Bar>& bars, const std::string& note)
{
    const std::vector<float> screen = projected(points, view);
    const auto dots = std::make_unique<Panel>(), shaded = std::make_unique<Panel>();
    for (size_t n = 0; n < screen.size(); n += 3)
    {
        const float p[3] = {screen[n], screen[n + 1], screen[n + 2]};
        dots->splat(p, 0, ink);
        shaded->splat(p, 2, shade(&normals[n], view));
    }
    Canvas canvas;
    canvas.put(*dots, 0);
    canvas.put(*shaded, panelWidth);
    const double y = panelHeight + 28;
    canvas.text(16, y, 16, std::to_string(points.count()) + " points: " + points.caption);
    canvas.text(panelWidth + 16, y, 16, "the same points, shaded by the normals computed from their neighbourhoods");
    drawBars(canvas, bars, note);
    canvas.save(path);
}
