#pragma once

#include <draftwick/model/Object.h>

namespace draftwick {

/// How much of a solid is drawn.
enum dwShape3DRenderMode : std::int32_t { dwS3RSolid = 1, dwS3RWireFrame = 2, dwS3RBoundingCube = 3 };
/// Whether what is farther away is drawn smaller.
enum dwShape3DProjection : std::int32_t { dwS3PParallel = 1, dwS3PPerspective = 2 };

/// The depth of a shape: how far it reaches, its surface, from where it is seen and how it is lit (RTF shape
/// properties c3D* and fc3D*). Only what differs from its default is written. Refuses once the shape is written
/// ("Shape"). Colours have red in the lowest byte, then green, then blue; lengths are 16 bits in twips; numbers that
/// are written in 65536ths are refused with error 6 when they do not fit 32 bits so.
class DRAFTWICK_API ShapeThreeD final : public detail::Part {
public:
    struct Values {
        bool visible = false;
        rule::Length depth{720};
        rule::Length depthForward{0};
        bool useColor = false;
        std::int32_t color = 0;
        bool metallic = false;
        bool lightFace = true;
        rule::Percent specularity{0};
        rule::Percent diffusion{100};
        std::int32_t shininess = 5;
        rule::PointsInEmu edgeThickness{1};
        rule::Fixed rotationX{0};
        rule::Fixed rotationY{0};
        rule::Choice<"ShapeThreeD.RenderMode", dwS3RSolid, dwS3RBoundingCube> renderMode{dwS3RSolid};
        rule::Choice<"ShapeThreeD.Projection", dwS3PParallel, dwS3PPerspective> projection{dwS3PParallel};
        rule::Fixed skewAngle{-135};
        std::int32_t skewAmount = 50;
        std::int32_t viewpointX = 1250000;
        std::int32_t viewpointY = -1250000;
        std::int32_t viewpointZ = 9000000;
        rule::Fixed originX{0.5};
        rule::Fixed originY{-0.5};
        std::int32_t ambientIntensity = 20000;
        std::int32_t keyX = 50000;
        std::int32_t keyY = 0;
        std::int32_t keyZ = 10000;
        std::int32_t keyIntensity = 38000;
        bool keyHarsh = true;
        std::int32_t fillX = -50000;
        std::int32_t fillY = 0;
        std::int32_t fillZ = 10000;
        std::int32_t fillIntensity = 38000;
        bool fillHarsh = false;
    };

    using Part::Part;

    /// Whether the shape has depth at all. Default false: nothing is written.
    bool Visible() const { return values_.visible; }
    void SetVisible(bool on) { Change(values_.visible, on); }

    /// From the shape backward. Default 720 twips.
    double Depth() const { return Read(values_.depth); }
    void SetDepth(Measure length) { Change(values_.depth, length); }
    /// From the shape forward. Default 0.
    double DepthForward() const { return Read(values_.depthForward); }
    void SetDepthForward(Measure length) { Change(values_.depthForward, length); }

    // The surface.

    /// Whether the sides have a colour of their own. Default false: the shape's.
    bool UseColor() const { return values_.useColor; }
    void SetUseColor(bool on) { Change(values_.useColor, on); }
    /// The colour of the sides, with UseColor. Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }
    /// The surface shines like metal. Default false.
    bool Metallic() const { return values_.metallic; }
    void SetMetallic(bool on) { Change(values_.metallic, on); }
    /// The front is lit, too, not only the sides. Default true.
    bool LightFace() const { return values_.lightFace; }
    void SetLightFace(bool on) { Change(values_.lightFace, on); }
    /// How much light the surface reflects like a mirror: percent. Default 0.
    double Specularity() const { return values_.specularity; }
    void SetSpecularity(double percent) { Change(values_.specularity, percent); }
    /// How much light the surface scatters: percent. Default 100.
    double Diffusion() const { return values_.diffusion; }
    void SetDiffusion(double percent) { Change(values_.diffusion, percent); }
    /// How small the spots of reflected light are. Default 5.
    std::int32_t Shininess() const { return values_.shininess; }
    void SetShininess(std::int32_t shininess) { Change(values_.shininess, shininess); }
    /// Points. Default 1. Rounded to a twentieth, ties to even, when it is written.
    double EdgeThickness() const { return values_.edgeThickness; }
    void SetEdgeThickness(double points) { Change(values_.edgeThickness, points); }

    // The view.

    /// Degrees about the horizontal axis. Default 0.
    double RotationX() const { return values_.rotationX; }
    void SetRotationX(double degrees) { Change(values_.rotationX, degrees); }
    /// Degrees about the vertical axis. Default 0.
    double RotationY() const { return values_.rotationY; }
    void SetRotationY(double degrees) { Change(values_.rotationY, degrees); }
    /// Default dwS3RSolid.
    dwShape3DRenderMode RenderMode() const { return values_.renderMode; }
    void SetRenderMode(dwShape3DRenderMode mode) { Change(values_.renderMode, mode); }
    /// Default dwS3PParallel: SkewAngle and SkewAmount say where the depth goes. With dwS3PPerspective the
    /// viewpoint and the origin do.
    dwShape3DProjection Projection() const { return values_.projection; }
    void SetProjection(dwShape3DProjection projection) { Change(values_.projection, projection); }
    /// Degrees. Default -135: to the upper right.
    double SkewAngle() const { return values_.skewAngle; }
    void SetSkewAngle(double degrees) { Change(values_.skewAngle, degrees); }
    /// Percent of the depth. Default 50.
    std::int32_t SkewAmount() const { return values_.skewAmount; }
    void SetSkewAmount(std::int32_t percent) { Change(values_.skewAmount, percent); }
    /// From where the shape is seen: English Metric Units, 12700 to the point. Default 1250000, -1250000, 9000000.
    std::int32_t ViewpointX() const { return values_.viewpointX; }
    void SetViewpointX(std::int32_t emu) { Change(values_.viewpointX, emu); }
    std::int32_t ViewpointY() const { return values_.viewpointY; }
    void SetViewpointY(std::int32_t emu) { Change(values_.viewpointY, emu); }
    std::int32_t ViewpointZ() const { return values_.viewpointZ; }
    void SetViewpointZ(std::int32_t emu) { Change(values_.viewpointZ, emu); }
    /// What the viewpoint is counted from: a part of the shape's width and height from its centre. Default 0.5, -0.5.
    double OriginX() const { return values_.originX; }
    void SetOriginX(double part) { Change(values_.originX, part); }
    double OriginY() const { return values_.originY; }
    void SetOriginY(double part) { Change(values_.originY, part); }

    // The light: one that is everywhere and two lamps, with their directions.

    /// 65536ths. Default 20000.
    std::int32_t AmbientIntensity() const { return values_.ambientIntensity; }
    void SetAmbientIntensity(std::int32_t intensity) { Change(values_.ambientIntensity, intensity); }
    /// The direction of the main lamp. Default 50000, 0, 10000.
    std::int32_t KeyX() const { return values_.keyX; }
    void SetKeyX(std::int32_t x) { Change(values_.keyX, x); }
    std::int32_t KeyY() const { return values_.keyY; }
    void SetKeyY(std::int32_t y) { Change(values_.keyY, y); }
    std::int32_t KeyZ() const { return values_.keyZ; }
    void SetKeyZ(std::int32_t z) { Change(values_.keyZ, z); }
    /// 65536ths. Default 38000.
    std::int32_t KeyIntensity() const { return values_.keyIntensity; }
    void SetKeyIntensity(std::int32_t intensity) { Change(values_.keyIntensity, intensity); }
    /// Its shadows are hard. Default true.
    bool KeyHarsh() const { return values_.keyHarsh; }
    void SetKeyHarsh(bool on) { Change(values_.keyHarsh, on); }
    /// The direction of the second lamp. Default -50000, 0, 10000.
    std::int32_t FillX() const { return values_.fillX; }
    void SetFillX(std::int32_t x) { Change(values_.fillX, x); }
    std::int32_t FillY() const { return values_.fillY; }
    void SetFillY(std::int32_t y) { Change(values_.fillY, y); }
    std::int32_t FillZ() const { return values_.fillZ; }
    void SetFillZ(std::int32_t z) { Change(values_.fillZ, z); }
    /// 65536ths. Default 38000.
    std::int32_t FillIntensity() const { return values_.fillIntensity; }
    void SetFillIntensity(std::int32_t intensity) { Change(values_.fillIntensity, intensity); }
    /// Its shadows are hard. Default false.
    bool FillHarsh() const { return values_.fillHarsh; }
    void SetFillHarsh(bool on) { Change(values_.fillHarsh, on); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
