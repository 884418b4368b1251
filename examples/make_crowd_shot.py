#!/usr/bin/env python3
"""Writes crowd_shot.ma, the example scene: an audience before a stage, as Maya 2016 writes such a scene.

Usage: make_crowd_shot.py [OUT.ma]     (default: crowd_shot.ma beside this script)

One unit is one metre. Figures are instances of a few meshes made of boxes; the same input always gives the
same file.
"""

import hashlib
import math
import os
import random
import sys

# A figure's boxes: name, centre, full size, and the joint that the box turns about (x axis).
TORSO = ((0, 1.15, 0), (0.42, 0.6, 0.22), None)
HEAD = ((0, 1.62, 0), (0.2, 0.26, 0.22), None)
ARM = ((0.27, 1.12, 0), (0.11, 0.62, 0.12), (0, 1.4, 0))
LEG = ((0.11, 0.43, 0), (0.15, 0.86, 0.16), (0, 0.85, 0))

# Pose: degrees that the left arm, right arm, left leg and right leg are turned forward.
POSES = {
    "stander": (4, -3, 0, 0),
    "walker": (-28, 30, 26, -24),
    "waver": (-8, 168, 3, -2),
    "cheerer": (160, 172, 0, 0),
}

BOX_EDGES = [(0, 1), (2, 3), (4, 5), (6, 7), (0, 2), (1, 3), (2, 4), (3, 5), (4, 6), (5, 7), (6, 0), (7, 1)]
# Edge k as k, the other way round as -k-1; faces outwards.
BOX_FACES = [(0, 5, -2, -5), (1, 7, -3, -7), (2, 9, -4, -9), (3, 11, -1, -11), (-12, -10, -8, -6),
             (10, 4, 6, 8)]


def turned(point, joint, degrees):
    if joint is None:
        return point
    a = math.radians(degrees)
    y, z = point[1] - joint[1], point[2] - joint[2]
    return (point[0], joint[1] + y * math.cos(a) + z * math.sin(a), joint[2] - y * math.sin(a) + z * math.cos(a))


def box(centre, size):
    hx, hy, hz = (s / 2 for s in size)
    corners = [(-hx, -hy, hz), (hx, -hy, hz), (-hx, hy, hz), (hx, hy, hz),
               (-hx, hy, -hz), (hx, hy, -hz), (-hx, -hy, -hz), (hx, -hy, -hz)]
    return [tuple(c + d for c, d in zip(centre, corner)) for corner in corners]


def mirrored(centre):
    return (-centre[0], centre[1], centre[2])


def figure_points(pose):
    left_arm, right_arm, left_leg, right_leg = pose
    limbs = [(*TORSO, 0), (*HEAD, 0), (*ARM, left_arm), (mirrored(ARM[0]), *ARM[1:], right_arm),
             (*LEG, left_leg), (mirrored(LEG[0]), *LEG[1:], right_leg)]
    return [turned(p, joint, angle) for centre, size, joint, angle in limbs for p in box(centre, size)]


def number(x):
    text = "%.6g" % x
    return "0" if text == "-0" else text


def uid(name):
    digits = hashlib.sha1(name.encode()).hexdigest().upper()
    return "-".join((digits[0:8], digits[8:12], digits[12:16], digits[16:20], digits[20:32]))


class Scene:
    """Lines of a scene in the order in which Maya writes them."""

    def __init__(self, name):
        self.name = name
        self.dag = []
        self.instances = []
        self.nodes = []
        self.defaults = []
        self.connections = []

    def create(self, lines, node_type, name, parent=None, shared=False):
        words = "createNode %s%s -n \"%s\"" % (node_type, " -s" if shared else "", name)
        lines.append(words + (" -p \"%s\";" % parent if parent else ";"))
        lines.append("\trename -uid \"%s\";" % uid("%s|%s" % (parent, name)))

    def values(self, lines, head, words):
        """A long list of words, broken as Maya breaks it."""
        line = head
        for text in words:
            if len(line) + 1 + len(text) > 78:
                lines.append(line)
                line = "\t\t"
            line += " " + text
        lines.append(line + ";")

    def transform(self, name, parent=None, t=None, r=None, s=None, lines=None):
        lines = self.dag if lines is None else lines
        self.create(lines, "transform", name, parent)
        for attribute, value in (("t", t), ("r", r), ("s", s)):
            if value is not None and any(v != (1 if attribute == "s" else 0) for v in value):
                text = " ".join(number(v) for v in value)
                lines.append("\tsetAttr \".%s\" -type \"double3\" %s ;" % (attribute, text))

    def boxes_mesh(self, name, parent, points, instances):
        """A mesh of boxes, eight points each; `instances` is how many parents it will have."""
        boxes = len(points) // 8
        lines = self.dag
        self.create(lines, "mesh", name, parent)
        lines.append("\tsetAttr -k off \".v\";")
        if instances > 1:
            lines.append("\tsetAttr -s %d \".iog\";" % instances)
        lines += ["\tsetAttr \".vir\" yes;", "\tsetAttr \".vif\" yes;",
                  "\tsetAttr \".uvst[0].uvsn\" -type \"string\" \"map1\";",
                  "\tsetAttr -s 4 \".uvst[0].uvsp[0:3]\" -type \"float2\" 0 0 1 0 1 1 0 1;",
                  "\tsetAttr \".cuvs\" -type \"string\" \"map1\";",
                  "\tsetAttr \".dcc\" -type \"string\" \"Ambient+Diffuse\";",
                  "\tsetAttr \".covm[0]\"  0 1 1;", "\tsetAttr \".cdvm[0]\"  0 1 1;"]
        self.values(lines, "\tsetAttr -s %d \".vt[0:%d]\" " % (len(points), len(points) - 1),
                    [number(v) for p in points for v in p])
        edges = [(a + 8 * b, c + 8 * b) for b in range(boxes) for a, c in BOX_EDGES]
        self.values(lines, "\tsetAttr -s %d \".ed[0:%d]\" " % (len(edges), len(edges) - 1),
                    [str(v) for a, c in edges for v in (a, c, 0)])
        faces = [tuple(e + 12 * b if e >= 0 else e - 12 * b for e in face)
                 for b in range(boxes) for face in BOX_FACES]
        lines.append("\tsetAttr -s %d -ch %d \".fc[0:%d]\" -type \"polyFaces\" "
                     % (len(faces), 4 * len(faces), len(faces) - 1))
        for k, face in enumerate(faces):
            lines.append("\t\tf 4 %d %d %d %d" % face)
            lines.append("\t\tmu 0 4 0 1 2 3" + (";" if k == len(faces) - 1 else ""))
        for attribute, what in (("cd", "Edge"), ("cvd", "Vertex"), ("pd[0]", "UV"), ("hfd", "Face")):
            lines.append("\tsetAttr \".%s\" -type \"dataPolyComponent\" Index_Data %s 0 ;" % (attribute, what))

    def camera(self, name, t, r, shape_lines):
        self.create(self.dag, "transform", name, shared=True)
        self.dag.append("\tsetAttr \".v\" no;")
        self.dag.append("\tsetAttr \".t\" -type \"double3\" %s ;" % " ".join("%.17g" % v for v in t))
        if any(r):
            self.dag.append("\tsetAttr \".r\" -type \"double3\" %s ;" % " ".join("%.17g" % v for v in r))
        shape = name + "Shape"
        self.create(self.dag, "camera", shape, name, shared=True)
        self.dag.append("\tsetAttr -k off \".v\" no;")
        self.dag += shape_lines
        self.dag += ["\tsetAttr \".imn\" -type \"string\" \"%s\";" % name,
                     "\tsetAttr \".den\" -type \"string\" \"%s_depth\";" % name,
                     "\tsetAttr \".man\" -type \"string\" \"%s_mask\";" % name]

    def connect(self, source, destination, next_available=False):
        self.connections.append("connectAttr \"%s\" \"%s\"%s;"
                                % (source, destination, " -na" if next_available else ""))

    def text(self):
        head = ["//Maya ASCII 2016 scene", "//Name: " + self.name,
                "//Last modified: Mon, Mar 07, 2016 10:12:31 AM", "//Codeset: UTF-8",
                "requires maya \"2016\";"]
        self.values(head, "requires",
                    ["-nodeType \"%s\"" % t for t in PLUGIN_TYPES] + ["\"tvxCrowdRender\"", "\"2.5.0.1\""])
        head += ["currentUnit -l centimeter -a degree -t film;",
                 "fileInfo \"application\" \"maya\";", "fileInfo \"product\" \"Maya 2016\";",
                 "fileInfo \"version\" \"2016\";", "fileInfo \"osv\" \"Linux 3.10.0-327.el7.x86_64\";"]
        lines = head + self.dag + self.instances + self.nodes + self.defaults + self.connections
        return "\n".join(lines) + "\n// End of %s\n" % self.name


def look_at(eye, target):
    """Rotation (degrees, xyz) of a camera at `eye` that looks along its -z at `target`, and the distance."""
    dx, dy, dz = (e - t for e, t in zip(eye, target))
    flat = math.hypot(dx, dz)
    return (-math.degrees(math.atan2(dy, flat)), math.degrees(math.atan2(dx, dz)), 0.0), math.hypot(flat, dy)


def add_cameras(scene):
    eye, target = (11.0, 13.5, 24.0), (0.9, 0.0, -1.4)
    rotation, distance = look_at(eye, target)
    scene.camera("persp", eye, rotation, ["\tsetAttr \".fl\" 34.999999999999993;",
                                          "\tsetAttr \".coi\" %.17g;" % distance])
    flat = ["\tsetAttr \".rnd\" no;", "\tsetAttr \".coi\" 100.1;", "\tsetAttr \".ow\" 30;"]
    for name, t, r in (("top", (0, 100.1, 0), (-90, 0, 0)), ("front", (0, 0, 100.1), (0, 0, 0)),
                       ("side", (100.1, 0, 0), (0, 90, 0))):
        scene.camera(name, t, r, flat)
        scene.dag.append("\tsetAttr \".o\" yes;")


def audience():
    """Places of the audience, row by row: position, heading in degrees, height factor, pose."""
    dice = random.Random(20160307)
    poses = list(POSES)
    for row in range(9):
        radius = 4.5 + 1.1 * row
        count = int(radius * math.radians(200) / 0.98)
        places = []
        for i in range(count):
            angle = math.radians(-100 + 200 * (i + 0.5) / count)
            r = radius + dice.uniform(-0.15, 0.15)
            x, z = r * math.sin(angle), r * math.cos(angle) - 5
            heading = math.degrees(angle) + 180 + dice.uniform(-14, 14)
            pose = poses[dice.choices(range(4), (5, 1, 3, 2))[0]]
            places.append(((round(x, 3), 0, round(z, 3)), round(heading, 2), round(dice.uniform(0.9, 1.1), 3),
                           pose))
        yield places


def add_figures(scene):
    """The audience under |crowd, and a troop that is instanced as a whole. Returns each pose's paths."""
    rows = list(audience())
    counts = {pose: sum(place[3] == pose for row in rows for place in row) for pose in POSES}
    counts["walker"] += 6
    first, paths = {}, {pose: [] for pose in POSES}
    scene.transform("crowd")

    def place(name, parent, pose, t, r, s):
        scene.transform(name, parent, t, r, s)
        path = "%s|%s" % (parent, name) if parent.startswith("|") else "|%s|%s" % (parent, name)
        shape = pose + "Shape"
        if pose not in first:
            first[pose] = path
            points = figure_points(POSES[pose])
            scene.boxes_mesh(shape, name, points, counts[pose] + (6 if pose == "walker" else 0))
        else:
            scene.instances.append("parent -s -nc -r -add \"%s|%s\" \"%s\" ;" % (first[pose], shape, name))
        paths[pose].append("%s|%s" % (path, shape))

    serial = 0
    for index, row in enumerate(rows, 1):
        row_name = "row%d" % index
        scene.transform(row_name, "crowd")
        for t, heading, height, pose in row:
            serial += 1
            place("figure%d" % serial, "|crowd|" + row_name, pose, t, (0, heading, 0), (height,) * 3)

    scene.transform("stewardsLeft", "crowd", (-4, 0, -9), (0, 155, 0))
    scene.transform("troop", "|crowd|stewardsLeft")
    for i in range(6):
        place("steward%d" % (i + 1), "|crowd|stewardsLeft|troop", "walker",
              (round(0.9 * (i % 2), 3), 0, round(1.1 * (i // 2), 3)), (0, 0, 0), (1.05,) * 3)
    scene.transform("stewardsRight", "crowd", (3, 0, -9), (0, 205, 0))
    scene.instances.append("parent -s -nc -r -add \"|crowd|stewardsLeft|troop\" \"stewardsRight\" ;")
    paths["walker"] += [p.replace("stewardsLeft", "stewardsRight") for p in paths["walker"] if "|troop|" in p]
    return paths


def add_stage(scene):
    scene.transform("stage", None, (0, 0, -5))
    scene.boxes_mesh("stageShape", "stage", box((0, 0.4, 0), (4.4, 0.8, 2.6)) + box((0, 2.2, -1.25), (4.4, 2.8, 0.1)), 1)
    return ["stageShape"]


# The node types of the plug-in that the scene uses, as the requires line names them.
PLUGIN_TYPES = ("CrowdGetUserData3Delight", "CrowdGetUserDataVRay", "CrowdHSLShaderVRay",
                "CrowdProxyRendermanStudio", "CrowdProxyVRay", "CrowdRenderManagerNode",
                "CrowdSwitchShader3Delight", "CrowdSwitchShaderVRay")

# Name, position, heading and what the proxy stands for.
PROXIES = [("proxyStage", (0, 1.8, -5), 0, "band"), ("proxyGate", (3, 1, 10), 10, "gate"),
           ("proxyWest", (-15, 1, -1), 40, "street_west"), ("proxyEast", (15, 1, -3), -40, "street_east"),
           ("proxyBackLeft", (-6, 1, -11), 10, "backstage_left"), ("proxyBackRight", (6, 1, -11), -10, "backstage_right"),
           ("proxyLeft", (-9.5, 1, 7.5), 20, "plaza_left"), ("proxyRight", (10.5, 1, 4.5), -15, "plaza_right")]

# The same for the proxies of the RenderMan shot.
RIB_PROXIES = [("ribLeft", (-1.4, 0, 11.6), 20, "plaza_left"), ("ribFar", (-7.5, 0, -12.5), 20, "backstage_left"),
               ("ribBack", (12, 0, -8), 25, "backstage_right")]


def add_proxies(scene):
    scene.transform("proxies")
    for i, (name, t, heading, crowd) in enumerate(PROXIES):
        scene.transform(name, "proxies", t, (0, heading, 0))
        shape = "crowdProxyVRayShape" + (str(i) if i else "")
        scene.create(scene.dag, "CrowdProxyVRay", shape, name)
        scene.dag += ["\tsetAttr -k off \".v\";",
                      "\tsetAttr \".scn\" -type \"string\" \"%s\";" % crowd,
                      "\tsetAttr \".vfd\" -type \"string\" \"/shots/plaza/vrscene/%s\";" % crowd]
        if i % 2 == 0:
            scene.dag.append("\tsetAttr \".pyc\" -type \"string\" \"crowd.onTranslate\";")

    for i, (name, t, heading, crowd) in enumerate(RIB_PROXIES):
        # The emblem lies on the ground; a turn about X makes it stand.
        scene.transform(name, "proxies", t, (90, heading, 0), (1.4, 1.4, 1.4))
        shape = "crowdProxyRMSShape" + (str(i) if i else "")
        scene.create(scene.dag, "CrowdProxyRendermanStudio", shape, name)
        scene.dag += ["\tsetAttr -k off \".v\";",
                      "\tsetAttr \".scn\" -type \"string\" \"%s\";" % crowd,
                      "\tsetAttr \".cfr\" %d;" % (101 + 12 * i),
                      "\tsetAttr \".fr\" 24;",
                      "\tsetAttr \".rfd\" -type \"string\" \"/shots/plaza/rib/%s\";" % crowd]


def add_manager(scene):
    scene.transform("crowdRenderManager")
    scene.create(scene.dag, "CrowdRenderManagerNode", "crowdRenderManagerNodeShape", "crowdRenderManager")
    scene.dag.append("\tsetAttr -k off \".v\";")


# Material, then the colours of its switch (shader index → colour) and whether shader0 is a file texture.
CLOTHES = [("stander", {0: (0.55, 0.14, 0.12), 1: (0.1, 0.25, 0.6), 2: (0.12, 0.45, 0.2)}, None),
           ("walker", {1: (0.8, 0.7, 0.1), 2: (0.2, 0.2, 0.22)}, "uniform.png"),
           ("waver", {0: (0.1, 0.25, 0.6), 3: (0.7, 0.3, 0.5)}, None),
           ("cheerer", {1: (0.9, 0.9, 0.85)}, "scarf.png")]

# Poses whose switch takes its choice from the renderer's data, and where from.
CHOICES = {"stander": "clothesIndex", "cheerer": "objectNumber"}
# Poses whose colour is shifted: offsets of hue, saturation and lightness.
SHIFTS = {"walker": (0.08, -0.25, 0), "cheerer": (0, 0.1, -0.2)}

# Type, name, parameters and code of the 3Delight nodes.
SHADING_CODE = [
    ("CrowdGetUserData3Delight", "clothesIndex3Delight", "float fallback = 0;",
     "float clothes = fallback;\nattribute(\"user:clothes\", clothes);"),
    ("CrowdSwitchShader3Delight", "clothes3Delight",
     "color shader0 = color(0.55, 0.14, 0.12);\ncolor shader1 = color(0.1, 0.25, 0.6);",
     "outColor = clothes < 1 ? shader0 : shader1;"),
]


def add_scene_nodes(scene):
    materials = len(CLOTHES) + 1
    for node_type, name, shared, lines in (
            ("lightLinker", "lightLinker1", True, ["\tsetAttr -s %d \".%s\";" % (materials + 2, a) for a in ("lnk", "slnk")]),
            ("displayLayerManager", "layerManager", False, []), ("displayLayer", "defaultLayer", False, []),
            ("renderLayerManager", "renderLayerManager", False, []),
            ("renderLayer", "defaultRenderLayer", False, ["\tsetAttr \".g\" yes;"]),
            ("script", "sceneConfigurationScriptNode", False,
             ["\tsetAttr \".b\" -type \"string\" \"playbackOptions -min 1 -max 120 -ast 1 -aet 200 \";",
              "\tsetAttr \".st\" 6;"])):
        scene.create(scene.nodes, node_type, name, shared=shared)
        scene.nodes += lines


def add_material(scene, name, color, members):
    """A lambert with its shading group; `color` is a triple or None when a connection gives it."""
    scene.create(scene.nodes, "lambert", name + "Mat")
    if color:
        scene.nodes.append("\tsetAttr \".c\" -type \"float3\" %s ;" % " ".join(number(c) for c in color))
    group = name + "SG"
    scene.create(scene.nodes, "shadingEngine", group)
    scene.nodes.append("\tsetAttr \".ihi\" 0;")
    if len(members) > 1:
        scene.nodes.append("\tsetAttr -s %d \".dsm\";" % len(members))
    scene.nodes.append("\tsetAttr \".ro\" yes;")
    scene.create(scene.nodes, "materialInfo", name + "Info")
    scene.connect(name + "Mat.oc", group + ".ss")
    for member in members:
        scene.connect(member + ".iog", group + ".dsm", True)
    scene.connect(group + ".msg", name + "Info.sg")
    scene.connect(name + "Mat.msg", name + "Info.m")


# Attributes of the same name that a place2dTexture feeds in its file texture.
PLACEMENT = ("c", "tf", "rf", "mu", "mv", "s", "wu", "wv", "re", "of", "r", "n", "vt1", "vt2", "vt3", "vc1")


def add_texture(scene, name, picture):
    scene.create(scene.nodes, "file", name)
    scene.nodes.append("\tsetAttr \".ftn\" -type \"string\" \"sourceimages/%s\";" % picture)
    scene.create(scene.nodes, "place2dTexture", name + "Place")
    for attribute in PLACEMENT:
        scene.connect("%sPlace.%s" % (name, attribute), "%s.%s" % (name, attribute))
    scene.connect(name + "Place.o", name + ".uv")
    scene.connect(name + "Place.ofs", name + ".fs")


def add_user_data(scene):
    """What the renderer tells of each figure: the index of its clothes, and its object's number."""
    scene.create(scene.nodes, "CrowdGetUserDataVRay", "clothesIndex")
    scene.create(scene.nodes, "CrowdGetUserDataVRay", "objectNumber")
    scene.nodes += ["\tsetAttr \".pt\" 1;", "\tsetAttr \".df\" 2;"]


def add_shift(scene, pose, switch):
    """A node that shifts hue, saturation and lightness of what the switch gives."""
    name = pose + "Shift"
    scene.create(scene.nodes, "CrowdHSLShaderVRay", name)
    for attribute, offset in zip("hsl", SHIFTS[pose]):
        if offset:
            scene.nodes.append("\tsetAttr \".%s\" %s;" % (attribute, number(offset)))
    scene.connect(switch + ".op", name + ".in")
    return name


def add_shading_code(scene):
    """The 3Delight side: nodes that carry shading-language text."""
    for node_type, name, parameters, code in SHADING_CODE:
        scene.create(scene.nodes, node_type, name)
        for attribute, text in (("sp", parameters), ("sc", code)):
            escaped = text.replace("\\", "\\\\").replace("\"", "\\\"").replace("\n", "\\n")
            scene.nodes.append("\tsetAttr \".%s\" -type \"string\" \"%s\";" % (attribute, escaped))


def add_shading(scene, paths, stage):
    materials = []
    add_user_data(scene)
    for index, (pose, colors, picture) in enumerate(CLOTHES):
        switch = pose + "Switch"
        scene.create(scene.nodes, "CrowdSwitchShaderVRay", switch)
        if pose not in CHOICES and index:
            scene.nodes.append("\tsetAttr \".sel\" %d;" % index)
        if index == 3:
            scene.nodes.append("\tsetAttr \".sto\" 12;")
        for k, color in sorted(colors.items()):
            scene.nodes.append("\tsetAttr \".sh%d\" -type \"float3\" %s ;" % (k, " ".join(number(c) for c in color)))
        if picture:
            texture = pose + "Texture"
            add_texture(scene, texture, picture)
            scene.connect(texture + ".oc", switch + ".sh0")
        add_material(scene, pose, None, paths[pose])
        last = switch
        if pose in SHIFTS:
            last = add_shift(scene, pose, switch)
        scene.connect(last + ".op", pose + "Mat.c")
        if pose in CHOICES:
            scene.connect(CHOICES[pose] + ".op", switch + ".sel")
        materials.append(pose)
    add_material(scene, "stage", (0.35, 0.3, 0.26), stage)
    materials.append("stage")
    add_shading_code(scene)
    # One switch feeds another: the waver's second choice is what the stander wears.
    scene.connect("standerSwitch.op", "waverSwitch.sh1")
    return materials


def add_defaults(scene, materials):
    count = len(materials)
    textures = [pose + "Texture" for pose, _, picture in CLOTHES if picture]
    utilities = ["clothesIndex", "objectNumber"]
    for pose, _, _ in CLOTHES:
        utilities += [pose + "Switch"] + ([pose + "Shift"] if pose in SHIFTS else [])
    utilities += [t + "Place" for t in textures] + [name for _, name, _, _ in SHADING_CODE]
    scene.defaults = [
        "select -ne :time1;", "\tsetAttr \".o\" 1;", "\tsetAttr \".unw\" 1;",
        "select -ne :renderPartition;", "\tsetAttr -s %d \".st\";" % (count + 2),
        "select -ne :renderGlobalsList1;",
        "select -ne :defaultShaderList1;", "\tsetAttr -s %d \".s\";" % (count + 4),
        "select -ne :postProcessList1;", "\tsetAttr -s 2 \".p\";",
        "select -ne :defaultRenderUtilityList1;", "\tsetAttr -s %d \".u\";" % len(utilities),
        "select -ne :defaultRenderingList1;",
        "select -ne :defaultTextureList1;", "\tsetAttr -s %d \".tx\";" % len(textures),
        "select -ne :initialShadingGroup;", "\tsetAttr \".ro\" yes;",
        "select -ne :initialParticleSE;", "\tsetAttr \".ro\" yes;",
        "select -ne :defaultResolution;", "\tsetAttr \".pa\" 1;"]
    groups = [":initialShadingGroup", ":initialParticleSE"] + [m + "SG" for m in materials]
    links = ["relationship \"%s\" \":lightLinker1\" \"%s.message\" \":defaultLightSet.message\";" % (kind, group)
             for kind in ("link", "shadowLink") for group in groups]
    scene.connections = links + [
        "connectAttr \"layerManager.dli[0]\" \"defaultLayer.id\";",
        "connectAttr \"renderLayerManager.rlmi[0]\" \"defaultRenderLayer.rlid\";"] + scene.connections
    for material in materials:
        scene.connect(material + "SG.pa", ":renderPartition.st", True)
    for material in materials:
        scene.connect(material + "Mat.msg", ":defaultShaderList1.s", True)
    for utility in utilities:
        scene.connect(utility + ".msg", ":defaultRenderUtilityList1.u", True)
    scene.connect("defaultRenderLayer.msg", ":defaultRenderingList1.r", True)
    for texture in textures:
        scene.connect(texture + ".msg", ":defaultTextureList1.tx", True)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "crowd_shot.ma")
    scene = Scene("crowd_shot.ma")
    add_cameras(scene)
    stage = add_stage(scene)
    paths = add_figures(scene)
    add_proxies(scene)
    add_manager(scene)
    add_scene_nodes(scene)
    materials = add_shading(scene, paths, stage)
    add_defaults(scene, materials)
    with open(out, "w", encoding="utf-8", newline="\n") as file:
        file.write(scene.text())


if __name__ == "__main__":
    main()
