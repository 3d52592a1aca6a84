import QtQuick
import QtTest
import Embera.Controls
import Embera.Rows
import Embera.Screens
import Embera.Testing
ScreenTestCase { id: testCase
name: "Loop"
Component { id: c_bareRowfirstplain
EBStageScreen { app: "corvane"; actions: [Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_bareRowfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_bareRowlastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] }
}
Component { id: c_bareRowlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] } } } }
}
Component { id: c_rowTextfirstplain
EBStageScreen { app: "corvane"; actions: [Row { spacing: 10
 Repeater { model: 3; Text { text: "some " + index } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_rowTextfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Row { spacing: 10
 Repeater { model: 3; Text { text: "some " + index } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_rowTextlastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10
 Repeater { model: 3; Text { text: "some " + index } } }] }
}
Component { id: c_rowTextlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10
 Repeater { model: 3; Text { text: "some " + index } } }] } } } }
}
Component { id: c_textfirstplain
EBStageScreen { app: "corvane"; actions: [Text { text: "abc" },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_textfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Text { text: "abc" },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_textlastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Text { text: "abc" }] }
}
Component { id: c_textlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Text { text: "abc" }] } } } }
}
Component { id: c_fixedfirstplain
EBStageScreen { app: "corvane"; actions: [Item { width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_fixedfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Item { width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_fixedlastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } }] }
}
Component { id: c_fixedlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } }] } } } }
}
Component { id: c_visiblefirstplain
EBStageScreen { app: "corvane"; actions: [Item { visible: width > 0; width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_visiblefirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Item { visible: width > 0; width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_visiblelastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { visible: width > 0; width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } }] }
}
Component { id: c_visiblelastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { visible: width > 0; width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } }] } } } }
}
Component { id: c_completedfirstplain
EBStageScreen { app: "corvane"; actions: [Row { Component.onCompleted: width = 77; height: 10 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_completedfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Row { Component.onCompleted: width = 77; height: 10 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_completedlastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { Component.onCompleted: width = 77; height: 10 }] }
}
Component { id: c_completedlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { Component.onCompleted: width = 77; height: 10 }] } } } }
}
Component { id: c_rowWidthfirstplain
EBStageScreen { app: "corvane"; actions: [Row { width: implicitWidth; spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_rowWidthfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Row { width: implicitWidth; spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_rowWidthlastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { width: implicitWidth; spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] }
}
Component { id: c_rowWidthlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { width: implicitWidth; spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] } } } }
}
Component { id: c_loaderfirstplain
EBStageScreen { app: "corvane"; actions: [Loader { sourceComponent: Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_loaderfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Loader { sourceComponent: Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_loaderlastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Loader { sourceComponent: Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } } }] }
}
Component { id: c_loaderlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Loader { sourceComponent: Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } } }] } } } }
}
Component { id: c_flowfirstplain
EBStageScreen { app: "corvane"; actions: [Flow { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_flowfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Flow { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_flowlastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Flow { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] }
}
Component { id: c_flowlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Flow { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] } } } }
}
Component { id: c_fracfirstplain
EBStageScreen { app: "corvane"; actions: [Row { spacing: 10.5
 Repeater { model: 3; Rectangle { width: 33.3; height: 20; opacity: 0.5 } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_fracfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [Row { spacing: 10.5
 Repeater { model: 3; Rectangle { width: 33.3; height: 20; opacity: 0.5 } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_fraclastplain
EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10.5
 Repeater { model: 3; Rectangle { width: 33.3; height: 20; opacity: 0.5 } } }] }
}
Component { id: c_fraclastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { EBStageScreen { app: "corvane"; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10.5
 Repeater { model: 3; Rectangle { width: 33.3; height: 20; opacity: 0.5 } } }] } } } }
}
function test_bareRowfirstplain() { const made = createTemporaryObject(c_bareRowfirstplain, testCase); waitForRendering(made); }
function test_bareRowfirstloader() { const made = createTemporaryObject(c_bareRowfirstloader, testCase); waitForRendering(made); }
function test_bareRowlastplain() { const made = createTemporaryObject(c_bareRowlastplain, testCase); waitForRendering(made); }
function test_bareRowlastloader() { const made = createTemporaryObject(c_bareRowlastloader, testCase); waitForRendering(made); }
function test_rowTextfirstplain() { const made = createTemporaryObject(c_rowTextfirstplain, testCase); waitForRendering(made); }
function test_rowTextfirstloader() { const made = createTemporaryObject(c_rowTextfirstloader, testCase); waitForRendering(made); }
function test_rowTextlastplain() { const made = createTemporaryObject(c_rowTextlastplain, testCase); waitForRendering(made); }
function test_rowTextlastloader() { const made = createTemporaryObject(c_rowTextlastloader, testCase); waitForRendering(made); }
function test_textfirstplain() { const made = createTemporaryObject(c_textfirstplain, testCase); waitForRendering(made); }
function test_textfirstloader() { const made = createTemporaryObject(c_textfirstloader, testCase); waitForRendering(made); }
function test_textlastplain() { const made = createTemporaryObject(c_textlastplain, testCase); waitForRendering(made); }
function test_textlastloader() { const made = createTemporaryObject(c_textlastloader, testCase); waitForRendering(made); }
function test_fixedfirstplain() { const made = createTemporaryObject(c_fixedfirstplain, testCase); waitForRendering(made); }
function test_fixedfirstloader() { const made = createTemporaryObject(c_fixedfirstloader, testCase); waitForRendering(made); }
function test_fixedlastplain() { const made = createTemporaryObject(c_fixedlastplain, testCase); waitForRendering(made); }
function test_fixedlastloader() { const made = createTemporaryObject(c_fixedlastloader, testCase); waitForRendering(made); }
function test_visiblefirstplain() { const made = createTemporaryObject(c_visiblefirstplain, testCase); waitForRendering(made); }
function test_visiblefirstloader() { const made = createTemporaryObject(c_visiblefirstloader, testCase); waitForRendering(made); }
function test_visiblelastplain() { const made = createTemporaryObject(c_visiblelastplain, testCase); waitForRendering(made); }
function test_visiblelastloader() { const made = createTemporaryObject(c_visiblelastloader, testCase); waitForRendering(made); }
function test_completedfirstplain() { const made = createTemporaryObject(c_completedfirstplain, testCase); waitForRendering(made); }
function test_completedfirstloader() { const made = createTemporaryObject(c_completedfirstloader, testCase); waitForRendering(made); }
function test_completedlastplain() { const made = createTemporaryObject(c_completedlastplain, testCase); waitForRendering(made); }
function test_completedlastloader() { const made = createTemporaryObject(c_completedlastloader, testCase); waitForRendering(made); }
function test_rowWidthfirstplain() { const made = createTemporaryObject(c_rowWidthfirstplain, testCase); waitForRendering(made); }
function test_rowWidthfirstloader() { const made = createTemporaryObject(c_rowWidthfirstloader, testCase); waitForRendering(made); }
function test_rowWidthlastplain() { const made = createTemporaryObject(c_rowWidthlastplain, testCase); waitForRendering(made); }
function test_rowWidthlastloader() { const made = createTemporaryObject(c_rowWidthlastloader, testCase); waitForRendering(made); }
function test_loaderfirstplain() { const made = createTemporaryObject(c_loaderfirstplain, testCase); waitForRendering(made); }
function test_loaderfirstloader() { const made = createTemporaryObject(c_loaderfirstloader, testCase); waitForRendering(made); }
function test_loaderlastplain() { const made = createTemporaryObject(c_loaderlastplain, testCase); waitForRendering(made); }
function test_loaderlastloader() { const made = createTemporaryObject(c_loaderlastloader, testCase); waitForRendering(made); }
function test_flowfirstplain() { const made = createTemporaryObject(c_flowfirstplain, testCase); waitForRendering(made); }
function test_flowfirstloader() { const made = createTemporaryObject(c_flowfirstloader, testCase); waitForRendering(made); }
function test_flowlastplain() { const made = createTemporaryObject(c_flowlastplain, testCase); waitForRendering(made); }
function test_flowlastloader() { const made = createTemporaryObject(c_flowlastloader, testCase); waitForRendering(made); }
function test_fracfirstplain() { const made = createTemporaryObject(c_fracfirstplain, testCase); waitForRendering(made); }
function test_fracfirstloader() { const made = createTemporaryObject(c_fracfirstloader, testCase); waitForRendering(made); }
function test_fraclastplain() { const made = createTemporaryObject(c_fraclastplain, testCase); waitForRendering(made); }
function test_fraclastloader() { const made = createTemporaryObject(c_fraclastloader, testCase); waitForRendering(made); }
}
