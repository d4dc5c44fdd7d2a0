#include "render/dimension_painters.h"

#include "render/painters.h"

namespace mirtane {
namespace {

class PaintedStrokes final : public StrokeSink {
  public:
    PaintedStrokes(Canvas& pic1, const View& view) : pic1_(pic1), view_(view) {}

    void line(Point a, Point b) override { paintLine(pic1_, view_, a, b); }
    void arc(Point centre, Point start, float r, double a1, double a2) override
    {
        paintArc(pic1_, view_, centre, start, r, a1, a2);
    }

  private:
    Canvas& pic1_;
    const View& view_;
};

} // namespace

void paintLinearDim(Canvas& pic1, const View& view, const DimensionShape& d)
{
    PaintedStrokes out(pic1, view);
    linearDimStrokes(d, out);
}

void paintRadialDim(Canvas& pic1, const View& view, const DimensionShape& d)
{
    PaintedStrokes out(pic1, view);
    radialDimStrokes(d, out);
}

void paintLeader(Canvas& pic1, const View& view, const DimensionShape& d)
{
    PaintedStrokes out(pic1, view);
    leaderStrokes(d, out);
}

void paintAngularDim(Canvas& pic1, const View& view, const DimensionShape& d)
{
    PaintedStrokes out(pic1, view);
    angularDimStrokes(d, out);
}

void paintDimension(Canvas& pic1, const View& view, const DimensionShape& d)
{
    PaintedStrokes out(pic1, view);
    dimensionStrokes(d, out);
}

} // namespace mirtane
