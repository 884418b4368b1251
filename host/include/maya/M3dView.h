// M3dView: a viewport.
#pragma once

#include <maya/MColor.h>
#include <maya/MDagPath.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypes.h>
#include <maya/MVector.h>
#include <maya/tvxEngine.h>

#include <GL/gl.h>

class MImage;
class MPxGlBuffer;
class QWidget;

// What the window system calls a connection, a context and a window.
typedef struct _XDisplay Display;
typedef struct __GLXcontextRec* MGLContext;
typedef unsigned long MNativeWindowHdl;

/// A viewport: its size, camera, colours and display options, and the way to draw into it. Copies stand for
/// the same viewport. Positions are pixels from the lower left.
class OPENMAYAUI_EXPORT M3dView
{
public:
    /// How objects are drawn.
    enum DisplayStyle
    {
        kBoundingBox = 0,
        kFlatShaded = 1,
        kGouraudShaded = 2,
        kWireFrame = 3,
        kPoints = 4,
    };

    /// How one object is shown.
    enum DisplayStatus
    {
        kActive = 0,  ///< selected
        kLive = 1,    ///< constrains the cursor
        kDormant = 2, ///< not selected
        kInvisible = 3,
        kHilite = 4,             ///< hilited for work on its components
        kTemplate = 5,           ///< cannot be selected in the view
        kActiveTemplate = 6,     ///< a template that is selected
        kActiveComponent = 7,    ///< with selected components
        kLead = 8,               ///< selected last
        kIntermediateObject = 9, ///< not drawn
        kActiveAffected = 10,    ///< affected by what is selected
        kNoStatus = 11,          ///< not a valid object
    };

    /// Tables of indexed colours.
    enum ColorTable
    {
        kActiveColors = 0,
        kDormantColors = 2,
        kTemplateColor = 5,
        kBackgroundColor = 6,
    };

    enum TextPosition
    {
        kLeft = 0,
        kCenter = 1,
        kRight = 2,
    };

    /// Kinds of objects that a view can show or hide: bits.
    enum DisplayObjects
    {
        kDisplayEverything = ~0,
        kDisplayNurbsCurves = 1 << 0,
        kDisplayNurbsSurfaces = 1 << 1,
        kDisplayMeshes = 1 << 2,
        kDisplayPlanes = 1 << 3,
        kDisplayLights = 1 << 4,
        kDisplayCameras = 1 << 5,
        kDisplayJoints = 1 << 6,
        kDisplayIkHandles = 1 << 7,
        kDisplayDeformers = 1 << 8,
        kDisplayDynamics = 1 << 9,
        kDisplayParticleInstancers = 1 << 10,
        kDisplayLocators = 1 << 11,
        kDisplayDimensions = 1 << 12,
        kDisplaySelectHandles = 1 << 13,
        kDisplayPivots = 1 << 14,
        kDisplayTextures = 1 << 15,
        kDisplayGrid = 1 << 16,
        kDisplayCVs = 1 << 17,
        kDisplayHulls = 1 << 18,
        kDisplayStrokes = 1 << 19,
        kDisplaySubdivSurfaces = 1 << 20,
        kDisplayFluids = 1 << 21,
        kDisplayFollicles = 1 << 22,
        kDisplayHairSystems = 1 << 23,
        kDisplayImagePlane = 1 << 24,
        kDisplayNCloths = 1 << 25,
        kDisplayNRigids = 1 << 26,
        kDisplayDynamicConstraints = 1 << 27,
        kDisplayManipulators = 1 << 28,
        kDisplayNParticles = 1 << 29,
        kExcludeMotionTrails = 1 << 30,
        kExcludePluginShapes = -2147483647 - 1,
    };

    enum LightingMode
    {
        kLightAll = 0,
        kLightSelected = 1,
        kLightActive = 2,
        kLightDefault = 3,
        kUnused1 = 4,
        kLightNone = 5,
    };

    enum RendererName
    {
        kDefaultQualityRenderer = 0,
        kHighQualityRenderer = 1,
        kViewport2Renderer = 2,
        kExternalRenderer = 3,
    };

    enum DepthBufferFormat
    {
        kDepth_8 = 0,
        kDepth_Float = 1,
    };

    enum LineStipplePattern
    {
        kStippleNone = 0,
        kStippleDashed = 1,
    };

    /// No viewport.
    M3dView();

    virtual ~M3dView();

    /// The view that has, or last had, the focus.
    static M3dView active3dView(MStatus* ReturnStatus = nullptr);

    /// The views that there are.
    static unsigned int numberOf3dViews();
    static MStatus get3dView(const unsigned int index, M3dView& view);

    /// How the object at the end of the path is shown.
    static DisplayStatus displayStatus(const MDagPath& path, MStatus* ReturnStatus = nullptr);

    /// Makes the OpenGL context current that all views share their objects with.
    MStatus makeSharedContextCurrent();

    /// Where the view is on the screen.
    void getScreenPosition(int& x, int& y, MStatus* ReturnStatus = nullptr) const;

    /// What the window system knows of the view. The host's views are no windows: null, kNotImplemented.
    Display* display(MStatus* ReturnStatus = nullptr);
    MGLContext glxContext(MStatus* ReturnStatus = nullptr);
    static MNativeWindowHdl applicationShell(MStatus* ReturnStatus = nullptr);
    QWidget* widget(MStatus* ReturnStatus = nullptr) const;
    MNativeWindowHdl window(MStatus* ReturnStatus = nullptr);

    /// Size in pixels.
    int portWidth(MStatus* ReturnStatus = nullptr);
    int portHeight(MStatus* ReturnStatus = nullptr);

    /// Whether the view can be seen.
    bool isVisible(MStatus* ReturnStatus = nullptr);

    /// Size in pixels while pictures are being made.
    int playblastPortWidth(MStatus* ReturnStatus = nullptr);
    int playblastPortHeight(MStatus* ReturnStatus = nullptr);

    /// Limits drawing to a part of the view, and back.
    MStatus pushViewport(unsigned int x, unsigned int y, unsigned int width, unsigned int height);
    MStatus popViewport();

    /// The part that is drawn to.
    MStatus viewport(unsigned int& x, unsigned int& y, unsigned int& width, unsigned int& height) const;

    /// Makes the view's OpenGL context current, and ends that. Calls may be nested.
    MStatus beginGL();
    MStatus endGL();

    /// Draws for picking: names that are drawn near the cursor come into the buffer.
    void beginSelect(GLuint* buffer = nullptr, GLsizei size = 0);
    GLint endSelect();
    bool selectMode() const;
    bool textureMode() const;
    void loadName(GLuint name);
    void pushName(GLuint name);
    void popName();
    void initNames();

    /// Draws over the picture so that drawing again removes it.
    MStatus beginXorDrawing(bool drawOrthographic = true, bool disableDepthTesting = true,
                            float lineWidth = 1.0f, LineStipplePattern stipplePattern = kStippleNone,
                            const MColor& lineColor = MColor(1, 1, 1));
    MStatus endXorDrawing();

    /// Sets the current colour of OpenGL, from a table or directly.
    MStatus setDrawColor(unsigned int index, ColorTable table = kActiveColors);
    MStatus setDrawColor(const MColor& color);
    MStatus setDrawColorAndAlpha(const MColor& color);

    /// The tables of colours.
    unsigned int numDormantColors(MStatus* ReturnStatus = nullptr);
    unsigned int numActiveColors(MStatus* ReturnStatus = nullptr);
    unsigned int numUserDefinedColors(MStatus* ReturnStatus = nullptr);
    MStatus setUserDefinedColor(unsigned int index, const MColor& color);
    unsigned int userDefinedColorIndex(unsigned int index, MStatus* ReturnStatus = nullptr);
    MColor colorAtIndex(unsigned int index, ColorTable table = kActiveColors,
                        MStatus* ReturnStatus = nullptr);
    MStatus getColorIndexAndTable(unsigned int glindex, unsigned int& index, ColorTable& table) const;

    /// The channels that are drawn to.
    MStatus colorMask(bool& r, bool& g, bool& b, bool& a);
    MStatus setColorMask(bool r, bool g, bool b, bool a);

    /// The colours of the user interface.
    static bool isBackgroundGradient(MStatus* ReturnStatus = nullptr);
    static MColor templateColor(MStatus* ReturnStatus = nullptr);
    static MColor backgroundColor(MStatus* ReturnStatus = nullptr);
    static MColor backgroundColorTop(MStatus* ReturnStatus = nullptr);
    static MColor backgroundColorBottom(MStatus* ReturnStatus = nullptr);
    static MColor liveColor(MStatus* ReturnStatus = nullptr);
    static MColor referenceLayerColor(MStatus* ReturnStatus = nullptr);
    static MColor activeTemplateColor(MStatus* ReturnStatus = nullptr);
    static MColor leadColor(MStatus* ReturnStatus = nullptr);
    static MColor hiliteColor(MStatus* ReturnStatus = nullptr);
    static MColor activeAffectedColor(MStatus* ReturnStatus = nullptr);

    /// Draws text at a place in the object's space.
    MStatus drawText(const MString& text, const MPoint position, TextPosition textPosition = kLeft);

    /// The camera, by path to its shape.
    MStatus getCamera(MDagPath& camera);

    /// Looks through another camera; the path may lead to the camera or its transform.
    MStatus setCamera(MDagPath& camera);

    /// Redraws soon.
    static MStatus scheduleRefreshAllViews();
    MStatus scheduleRefresh();

    /// Redraws at once, this view or all of them; `force` also when nothing has changed.
    MStatus refresh(bool all = false, bool force = false);
    MStatus refresh(bool all, bool force, bool offscreen);

    /// The same into a plug-in's own buffer: kNotImplemented.
    MStatus refresh(MPxGlBuffer& buffer);
    MStatus refresh(MPxGlBuffer& buffer, bool offscreen);
    MStatus refresh(MPxGlBuffer& buffer, bool offscreen, const MMatrix& projectionMatrix);

    /// The picture as an image: kNotImplemented.
    MStatus readColorBuffer(MImage& image, bool readRGBA = false);
    MStatus writeColorBuffer(const MImage& image, short x = 0, short y = 0) const;

    /// The lights that the view uses.
    MStatus getLightCount(unsigned int& count, bool visible = true);
    MStatus getLightingMode(LightingMode& mode);
    MStatus getLightPath(unsigned int lightNumber, MDagPath& light);
    MStatus isLightVisible(unsigned int lightNumber, bool& visible);
    MStatus getLightIndex(unsigned int lightNumber, unsigned int& lightIndex);

    /// From a pixel to the ray below it, as a point on the near plane and a direction or as the points on the
    /// near and far planes.
    MStatus viewToWorld(short x_pos, short y_pos, MPoint& worldPt, MVector& worldVector) const;
    MStatus viewToWorld(short x_pos, short y_pos, MPoint& nearClipPt, MPoint& farClipPt) const;
    MStatus viewToObjectSpace(short x_pos, short y_pos, const MMatrix& localMatrixInverse, MPoint& oPt,
                              MVector& oVector) const;

    /// From a point to the pixel; false when the point is clipped.
    bool worldToView(const MPoint& worldPt, short& x_pos, short& y_pos,
                     MStatus* ReturnStatus = nullptr) const;

    /// The matrices in use, for row vectors.
    MStatus projectionMatrix(MMatrix& projectionMatrix) const;
    MStatus modelViewMatrix(MMatrix& modelViewMatrix) const;

    /// Showing only what was selected.
    MString viewSelectedPrefix(MStatus* ReturnStatus) const;
    MStatus setViewSelectedPrefix(const MString& prefix);
    bool showViewSelectedChildren(MStatus* ReturnStatus) const;
    MStatus setShowViewSelectedChildren(bool value);

    /// The view of a panel, by name; kFailure when there is none.
    static MStatus getM3dViewFromModelPanel(const MString& modelPaneName, M3dView& view);
    static MStatus getM3dViewFromModelEditor(const MString& modelPaneName, M3dView& view);

    /// How objects are drawn.
    DisplayStyle displayStyle(MStatus* ReturnStatus = nullptr) const;

    bool isShadeActiveOnly(MStatus* ReturnStatus = nullptr) const;
    MStatus setDisplayStyle(DisplayStyle style, bool activeOnly = false);

    /// Which kinds of objects are shown, as bits of DisplayObjects.
    MStatus setObjectDisplay(unsigned int displayMask);
    unsigned int objectDisplay(MStatus* ReturnStatus = nullptr);
    MStatus setPluginObjectDisplay(const MString& pluginDisplayFilter, bool on);
    bool pluginObjectDisplay(const MString& pluginDisplayFilter, MStatus* ReturnStatus = nullptr);

    /// The renderer of the view.
    RendererName getRendererName(MStatus* ReturnStatus) const;
    MString rendererString(MStatus* ReturnStatus = nullptr) const;

    /// Display options.
    bool wireframeOnlyInShadedMode(MStatus* ReturnStatus) const;
    bool wireframeOnShaded(MStatus* ReturnStatus = nullptr) const;
    bool xray(MStatus* ReturnStatus = nullptr) const;
    bool xrayJoints(MStatus* ReturnStatus = nullptr) const;
    bool twoSidedLighting(MStatus* ReturnStatus = nullptr) const;

    /// Reads part of the picture's depth.
    MStatus readDepthMap(unsigned short x, unsigned short y, unsigned int width, unsigned int height,
                         unsigned char* bufferPtr, DepthBufferFormat depthMapPrecision);
    MStatus readBufferTo2dTexture(unsigned short x, unsigned short y, unsigned int width,
                                  unsigned int height);

    /// How textures and materials are drawn.
    bool usingMipmappedTextures() const;
    bool usingDefaultMaterial() const;
    MStatus setDisallowPolygonOffset(bool v);
    bool disallowPolygonOffset() const;

    /// Takes over changes of the camera.
    MStatus updateViewingParameters();

    /// Drawing of every object several times.
    bool multipleDrawEnabled() const;
    void setMultipleDrawEnable(bool enable);
    unsigned int multipleDrawPassCount();
    void setMultipleDrawPassCount(unsigned int count);

    /// Uses another projection, and ends that.
    MStatus beginProjMatrixOverride(MMatrix& projectionMatrix);
    MStatus endProjMatrixOverride();

    /// The plug-in's renderer of the view.
    MStatus setRenderOverrideName(const MString& name);
    MString renderOverrideName(MStatus* ReturnStatus = nullptr) const;

    /// The plug-in's filter of objects.
    MStatus setObjectListFilterName(const MString& name);
    MString objectListFilterName(MStatus* ReturnStatus = nullptr) const;
    MStatus setShowObjectFilterNameInHUD(bool show);
    bool showObjectFilterNameInHUD(MStatus* ReturnStatus) const;
    MStatus getRendererString(MString& stringName) const;

    /// The name of this class.
    static const char* className();

private:
    friend class tvxAccess;

    tvxhost::api::View* view; ///< not owned: the application keeps its viewports
    void* reserved;
};
