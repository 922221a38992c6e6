#include "views/stride_picture.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace views {

namespace {

// Lengths are parts of the body's height, y points down, and the walk goes to the right.

constexpr double Thigh = 0.245;
constexpr double Shank = 0.246;
constexpr double AnkleHeight = 0.039;
constexpr double HeelLength = 0.042;
constexpr double ToeLength = 0.110;
constexpr double Trunk = 0.288;
constexpr double UpperArm = 0.186;
constexpr double Forearm = 0.170; ///< to the middle of the hand
constexpr double Neck = 0.115;    ///< to the middle of the head
constexpr double HeadWidth = 0.052;
constexpr double HeadHeight = 0.064;
constexpr double TrunkLean = 4;
constexpr double Stride = 0.79;

/// A leg's angles in degrees: the thigh forward of the vertical, the knee bent, the toes raised to the shank.
struct LegAngles
{
    double thigh, knee, ankle;
};

/// Every tenth of a stride, which begins as the heel touches the ground.
constexpr std::array<LegAngles, 10> Gait{{{25, 4, 0},
                                          {22, 15, -6},
                                          {15, 17, 2},
                                          {6, 13, 7},
                                          {-6, 8, 12},
                                          {-18, 9, 15},
                                          {-16, 36, -12},
                                          {3, 62, -10},
                                          {20, 58, -2},
                                          {29, 28, 0}}};

LegAngles legAngles(double phase)
{
    const double place = (phase - std::floor(phase)) * double(Gait.size());
    const auto before = static_cast<size_t>(place) % Gait.size();
    const LegAngles &a = Gait[before];
    const LegAngles &b = Gait[(before + 1) % Gait.size()];
    const double share = place - std::floor(place);
    return {std::lerp(a.thigh, b.thigh, share), std::lerp(a.knee, b.knee, share),
            std::lerp(a.ankle, b.ankle, share)};
}

/// A point `length` away, `degrees` forward of straight down.
QPointF hanging(const QPointF &from, double length, double degrees)
{
    const double angle = qDegreesToRadians(degrees);
    return from + QPointF(std::sin(angle), std::cos(angle)) * length;
}

struct Leg
{
    QPointF knee, ankle, heel, toe;
};

Leg legAt(double phase)
{
    const LegAngles angles = legAngles(phase);
    const double shank = angles.thigh - angles.knee;
    const double foot = shank + angles.ankle;
    Leg leg;
    leg.knee = hanging({}, Thigh, angles.thigh);
    leg.ankle = hanging(leg.knee, Shank, shank);
    const QPointF sole = hanging(leg.ankle, AnkleHeight, foot);
    leg.heel = hanging(sole, HeelLength, foot - 90);
    leg.toe = hanging(sole, ToeLength, foot + 90);
    return leg;
}

struct Arm
{
    QPointF elbow, hand;
};

// An arm swings against the leg of its side.
Arm armAt(double phase, const QPointF &shoulder)
{
    const double swing = -std::cos(2 * M_PI * phase);
    const double upper = 22 * swing - 3;
    const double elbow = 22 + 12 * swing;
    Arm arm;
    arm.elbow = hanging(shoulder, UpperArm, upper);
    arm.hand = hanging(arm.elbow, Forearm, upper + elbow);
    return arm;
}

/// The body at one moment, with the hip at the origin.
struct Body
{
    explicit Body(double phase)
        : nearLeg(legAt(phase))
        , farLeg(legAt(phase + 0.5))
        , shoulder(hanging({}, Trunk, 180 - TrunkLean))
        , head(hanging(shoulder, Neck, 180 - TrunkLean))
        , nearArm(armAt(phase, shoulder))
        , farArm(armAt(phase + 0.5, shoulder))
        , ground(std::max({nearLeg.heel.y(), nearLeg.toe.y(), farLeg.heel.y(), farLeg.toe.y()}))
    {}

    Leg nearLeg, farLeg;
    QPointF shoulder, head;
    Arm nearArm, farArm;
    double ground; ///< how far below the hip the ground is
};

/// How a body is drawn; colours without transparency, so that joints do not shine through one another.
struct Look
{
    QColor nearSide, farSide, joint, head;
    double line = 0;   ///< width
    double joints = 0; ///< radius, 0 for none
};

class BodyPainter
{
public:
    /// Draws with a body height of `height` and the ground at `ground`, a body's hip at its `x`.
    BodyPainter(QPainter &painter, double height, double ground)
        : painter_(painter), height_(height), ground_(ground)
    {}

    void draw(const Body &body, double x, const Look &look)
    {
        hip_ = QPointF(x, ground_ - body.ground * height_);
        const QPointF hip;
        drawLimb({body.shoulder, body.farArm.elbow, body.farArm.hand}, look.farSide, look);
        drawLeg(body.farLeg, look.farSide, look);
        drawLimb({hip, body.shoulder, body.head}, look.nearSide, look);
        drawHead(body.head, look);
        drawLeg(body.nearLeg, look.nearSide, look);
        drawLimb({body.shoulder, body.nearArm.elbow, body.nearArm.hand}, look.nearSide, look);
        drawJoints({hip, body.shoulder}, look.nearSide, look);
    }

private:
    QPointF place(const QPointF &point) const { return hip_ + point * height_; }

    QPolygonF places(const QList<QPointF> &points) const
    {
        QPolygonF result;
        for (const QPointF &point : points)
            result.append(place(point));
        return result;
    }

    void setLine(const QColor &colour, const Look &look)
    {
        painter_.setPen(QPen(colour, look.line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    void drawLimb(const QList<QPointF> &points, const QColor &colour, const Look &look)
    {
        setLine(colour, look);
        painter_.drawPolyline(places(points));
        drawJoints(points.mid(1, points.size() - 2), colour, look);
    }

    void drawLeg(const Leg &leg, const QColor &colour, const Look &look)
    {
        setLine(colour, look);
        painter_.setBrush(colour);
        painter_.drawPolygon(places({leg.ankle, leg.heel, leg.toe}));
        drawLimb({QPointF(), leg.knee, leg.ankle}, colour, look);
        drawJoints({leg.ankle}, colour, look);
    }

    void drawHead(const QPointF &middle, const Look &look)
    {
        setLine(look.nearSide, look);
        painter_.setBrush(look.head);
        painter_.drawEllipse(place(middle), HeadWidth * height_, HeadHeight * height_);
    }

    void drawJoints(const QList<QPointF> &points, const QColor &colour, const Look &look)
    {
        if (look.joints <= 0)
            return;
        painter_.setPen(QPen(colour, look.line * 0.6));
        painter_.setBrush(look.joint);
        for (const QPointF &point : points)
            painter_.drawEllipse(place(point), look.joints, look.joints);
    }

    QPainter &painter_;
    double height_;
    double ground_;
    QPointF hip_;
};

QColor mix(const QColor &from, const QColor &to, double share)
{
    const auto part = [share](float a, float b) { return std::lerp(a, b, static_cast<float>(share)); };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

// A desktop's highlight may be as pale as its pages.
QColor readable(QColor colour, const QPalette &palette)
{
    constexpr double Enough = 4;
    for (int i = 0; i < 10 && contrast(colour, palette.color(QPalette::Base)) < Enough; ++i)
        colour = mix(colour, palette.color(QPalette::Text), 0.2);
    return colour;
}

void drawIcon(QPainter &painter, const QRectF &field)
{
    const double size = std::min(field.width(), field.height());
    const QRectF square(field.center() - QPointF(size, size) / 2, QSizeF(size, size));
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient background(square.topLeft(), square.bottomLeft());
    background.setColorAt(0, QColor(0x2f, 0x6f, 0xa8));
    background.setColorAt(1, QColor(0x17, 0x40, 0x6b));
    painter.setPen(Qt::NoPen);
    painter.setBrush(background);
    painter.drawRoundedRect(square, size * 0.2, size * 0.2);
    const bool isSmall = size < 48;
    const Look look{.nearSide = Qt::white,
                    .farSide = QColor(0x9c, 0xc9, 0xf0),
                    .joint = QColor(0x20, 0x52, 0x82),
                    .head = Qt::white,
                    .line = size * (isSmall ? 0.075 : 0.05),
                    .joints = isSmall ? 0 : size * 0.034};
    BodyPainter(painter, size * 0.8, square.bottom() - size * 0.1).draw(Body(0), square.center().x(), look);
}

class StrideIconEngine : public QIconEngine
{
public:
    void paint(QPainter *painter, const QRect &field, QIcon::Mode, QIcon::State) override
    {
        painter->save();
        drawIcon(*painter, field);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, result.rect(), mode, state);
        return result;
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        QList<QSize> sizes;
        for (int side : {16, 24, 32, 48, 64, 128, 256})
            sizes.append({side, side});
        return sizes;
    }

    bool isNull() override { return false; }

    QIconEngine *clone() const override { return new StrideIconEngine(*this); }
};

} // namespace

void drawStride(QPainter &painter, const QRectF &field, const QPalette &palette)
{
    constexpr int Phases = 7;
    constexpr double Strides = 2;     ///< from the first phase to the last
    constexpr double BesideHip = 0.4; ///< what a body takes to each side of its hip
    constexpr double Around = 1.16;   ///< the height of the field, where a body's is 1
    constexpr double Width = Strides * Stride + 2 * BesideHip;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(field);
    const QColor page = palette.color(QPalette::Base);
    const QColor accent = palette.color(QPalette::Highlight);
    QLinearGradient background(field.topLeft(), field.bottomLeft());
    background.setColorAt(0, page);
    background.setColorAt(1, mix(page, accent, 0.12));
    painter.fillRect(field, background);

    const double height = std::min(field.height() / Around, field.width() / Width);
    const double ground = field.center().y() + height * (Around / 2 - 0.08);
    const QColor nearSide = readable(accent, palette);
    const QColor farSide = mix(page, palette.color(QPalette::Text), 0.65);
    painter.setPen(QPen(mix(page, palette.color(QPalette::Text), 0.5), height * 0.008));
    painter.drawLine(QPointF(field.left(), ground), QPointF(field.right(), ground));

    BodyPainter bodies(painter, height, ground - height * 0.012);
    for (int i = 0; i < Phases; ++i) {
        const double progress = double(i) / (Phases - 1);
        const double strength = i == Phases - 1 ? 1 : 0.22 + 0.4 * progress;
        const double phase = (progress - 1) * Strides;
        const double x = field.center().x() + (progress - 0.5) * Strides * Stride * height;
        bodies.draw(Body(phase), x,
                    {.nearSide = mix(page, nearSide, strength),
                     .farSide = mix(page, farSide, strength),
                     .joint = page,
                     .head = page,
                     .line = height * 0.018,
                     .joints = height * 0.013});
    }
    painter.restore();
}

QIcon applicationIcon()
{
    return QIcon(new StrideIconEngine);
}

} // namespace views
