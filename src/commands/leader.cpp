#include "commands/leader.h"

#include "commands/commit.h"
#include "commands/leader_shoulder.h"
#include "commands/prompt.h"
#include "commands/typed_text.h"
#include "render/dimension_painters.h"
#include "render/redraw.h"
#include "render/text_painter.h"

namespace mirtane {
namespace {

void paintText3(const Session& s, Canvas& pic1, Point at)
{
    paintDimText(pic1, {at, s.arrowSize, 0, false, s.textFont, s.controls[ids::workText].text});
}

void takeLeaderElbow(Session& s)
{
    const Shoulder shoulder = shoulderAt(s.pickLast, s.arrowSize);
    s.ptB = s.pickLast;
    s.ptC = shoulder.end;
    s.ptD = shoulder.text;
}

// ptA to ptC, without the text.
void paintArrow(const Session& s, Canvas& pic1)
{
    DimensionShape d;
    d.p1 = s.ptA;
    d.p2 = s.ptB;
    d.p3 = s.ptC;
    d.s1 = s.dimStyle;
    d.a2 = s.arrowSize;
    paintLeader(pic1, s, d);
}

void paintScratchLeader(const Session& s, Canvas& pic1)
{
    paintArrow(s, pic1);
    paintText3(s, pic1, s.ptD);
}

// workText may hold what another function has left there.
void endTyping(Session& s, Canvas& pic1)
{
    setText(s.controls[ids::workText], typedText(s));
    restorePicture(pic1);
    setPrompt(s, pic1);
}

} // namespace

void leaderStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        endTyping(s, pic1);
    } else if (s.stepNo == 2) {
        s.ptA = s.pickLast;
        setPrompt(s, pic1);
    } else if (s.stepNo > 2) {
        takeLeaderElbow(s);
        commitEntity(s, pic1, addLeader, paintScratchLeader, pen::solid);
        clearTypedText(s);
        readyForNext(s, pic1);
    }
}

void leaderBand(Session& s, Canvas& pic1)
{
    if (s.stepNo < 2) return;
    takeLeaderElbow(s);
    restorePicture(pic1);
    paintArrow(s, pic1);
}

void leaderPreview(Session& s, Canvas& pic1)
{
    paintText3(s, pic1, s.mousePos);
}

} // namespace mirtane
