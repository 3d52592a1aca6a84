import QtQuick
import QtTest
import Embera.Controls
import Embera.Rows
import Embera.Screens
import Embera.Testing
ScreenTestCase { id: testCase
name: "Loop"
Component { id: c_repfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_repfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_replastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } }] }
}
Component { id: c_replastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } }] } } } }
}
Component { id: c_rep2firstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Repeater { model: 3; EBButton { text: "x" + index; size: "sm"; Component.onCompleted: text = "longer" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_rep2firstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Repeater { model: 3; EBButton { text: "x" + index; size: "sm"; Component.onCompleted: text = "longer" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_rep2lastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Repeater { model: 3; EBButton { text: "x" + index; size: "sm"; Component.onCompleted: text = "longer" } }] }
}
Component { id: c_rep2lastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Repeater { model: 3; EBButton { text: "x" + index; size: "sm"; Component.onCompleted: text = "longer" } }] } } } }
}
Component { id: c_anchfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { spacing: 10; Repeater { model: 2; KeyCap { required property int index; keys: "⌘" + index; Component.onCompleted: keys = "⌘⌘⌘⌘" } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_anchfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { spacing: 10; Repeater { model: 2; KeyCap { required property int index; keys: "⌘" + index; Component.onCompleted: keys = "⌘⌘⌘⌘" } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_anchlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10; Repeater { model: 2; KeyCap { required property int index; keys: "⌘" + index; Component.onCompleted: keys = "⌘⌘⌘⌘" } } }] }
}
Component { id: c_anchlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10; Repeater { model: 2; KeyCap { required property int index; keys: "⌘" + index; Component.onCompleted: keys = "⌘⌘⌘⌘" } } }] } } } }
}
Component { id: c_implfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { id: im; implicitHeight: 20; Component.onCompleted: implicitWidth = 50 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_implfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { id: im; implicitHeight: 20; Component.onCompleted: implicitWidth = 50 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_impllastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { id: im; implicitHeight: 20; Component.onCompleted: implicitWidth = 50 }] }
}
Component { id: c_impllastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { id: im; implicitHeight: 20; Component.onCompleted: implicitWidth = 50 }] } } } }
}
Component { id: c_parentdepfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { height: 10; width: Math.min(100, parent ? parent.width / 5 : 0) },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_parentdepfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { height: 10; width: Math.min(100, parent ? parent.width / 5 : 0) },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_parentdeplastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { height: 10; width: Math.min(100, parent ? parent.width / 5 : 0) }] }
}
Component { id: c_parentdeplastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { height: 10; width: Math.min(100, parent ? parent.width / 5 : 0) }] } } } }
}
Component { id: c_freedepfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { height: 10; width: parent ? parent.childrenRect.width > 500 ? 40 : 30 : 0 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_freedepfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { height: 10; width: parent ? parent.childrenRect.width > 500 ? 40 : 30 : 0 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_freedeplastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { height: 10; width: parent ? parent.childrenRect.width > 500 ? 40 : 30 : 0 }] }
}
Component { id: c_freedeplastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { height: 10; width: parent ? parent.childrenRect.width > 500 ? 40 : 30 : 0 }] } } } }
}
Component { id: c_implparfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { height: 10; width: parent && parent.implicitWidth > 300 ? 40 : 30 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_implparfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { height: 10; width: parent && parent.implicitWidth > 300 ? 40 : 30 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_implparlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { height: 10; width: parent && parent.implicitWidth > 300 ? 40 : 30 }] }
}
Component { id: c_implparlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { height: 10; width: parent && parent.implicitWidth > 300 ? 40 : 30 }] } } } }
}
Component { id: c_bareRowfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_bareRowfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_bareRowlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] }
}
Component { id: c_bareRowlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] } } } }
}
Component { id: c_rowTextfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { spacing: 10
 Repeater { model: 3; Text { text: "some " + index } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_rowTextfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { spacing: 10
 Repeater { model: 3; Text { text: "some " + index } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_rowTextlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10
 Repeater { model: 3; Text { text: "some " + index } } }] }
}
Component { id: c_rowTextlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10
 Repeater { model: 3; Text { text: "some " + index } } }] } } } }
}
Component { id: c_textfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Text { text: "abc" },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_textfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Text { text: "abc" },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_textlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Text { text: "abc" }] }
}
Component { id: c_textlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Text { text: "abc" }] } } } }
}
Component { id: c_fixedfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_fixedfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_fixedlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } }] }
}
Component { id: c_fixedlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } }] } } } }
}
Component { id: c_visiblefirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { visible: width > 0; width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_visiblefirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Item { visible: width > 0; width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_visiblelastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { visible: width > 0; width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } }] }
}
Component { id: c_visiblelastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Item { visible: width > 0; width: t.implicitWidth; height: 20; Text { id: t; text: "abc def" } }] } } } }
}
Component { id: c_completedfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { Component.onCompleted: width = 77; height: 10 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_completedfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { Component.onCompleted: width = 77; height: 10 },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_completedlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { Component.onCompleted: width = 77; height: 10 }] }
}
Component { id: c_completedlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { Component.onCompleted: width = 77; height: 10 }] } } } }
}
Component { id: c_rowWidthfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { width: implicitWidth; spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_rowWidthfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { width: implicitWidth; spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_rowWidthlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { width: implicitWidth; spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] }
}
Component { id: c_rowWidthlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { width: implicitWidth; spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] } } } }
}
Component { id: c_loaderfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Loader { sourceComponent: Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_loaderfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Loader { sourceComponent: Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_loaderlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Loader { sourceComponent: Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } } }] }
}
Component { id: c_loaderlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Loader { sourceComponent: Row { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } } }] } } } }
}
Component { id: c_flowfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Flow { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_flowfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Flow { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_flowlastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Flow { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] }
}
Component { id: c_flowlastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Flow { spacing: 10
 Repeater { model: ["⌘W","⌘M"]; KeyCap { required property string modelData; keys: modelData } } }] } } } }
}
Component { id: c_fracfirstplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { spacing: 10.5
 Repeater { model: 3; Rectangle { width: 33.3; height: 20; opacity: 0.5 } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] }
}
Component { id: c_fracfirstloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [Row { spacing: 10.5
 Repeater { model: 3; Rectangle { width: 33.3; height: 20; opacity: 0.5 } } },
EBSpacer {},
EBButton { text: "Continue"; size: "sm" }] } } } }
}
Component { id: c_fraclastplain
%s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10.5
 Repeater { model: 3; Rectangle { width: 33.3; height: 20; opacity: 0.5 } } }] }
}
Component { id: c_fraclastloader
Item { width: 560; height: 388; Loader { anchors.fill: parent; active: true; sourceComponent: Component { %s { app: "corvane"; LayoutMirroring.enabled: %s; LayoutMirroring.childrenInherit: true; actions: [EBButton { text: "Continue"; size: "sm" },
EBSpacer {},
Row { spacing: 10.5
 Repeater { model: 3; Rectangle { width: 33.3; height: 20; opacity: 0.5 } } }] } } } }
}
function test_repfirstplain() { const made = createTemporaryObject(c_repfirstplain, testCase); waitForRendering(made); }
function test_repfirstloader() { const made = createTemporaryObject(c_repfirstloader, testCase); waitForRendering(made); }
function test_replastplain() { const made = createTemporaryObject(c_replastplain, testCase); waitForRendering(made); }
function test_replastloader() { const made = createTemporaryObject(c_replastloader, testCase); waitForRendering(made); }
function test_rep2firstplain() { const made = createTemporaryObject(c_rep2firstplain, testCase); waitForRendering(made); }
function test_rep2firstloader() { const made = createTemporaryObject(c_rep2firstloader, testCase); waitForRendering(made); }
function test_rep2lastplain() { const made = createTemporaryObject(c_rep2lastplain, testCase); waitForRendering(made); }
function test_rep2lastloader() { const made = createTemporaryObject(c_rep2lastloader, testCase); waitForRendering(made); }
function test_anchfirstplain() { const made = createTemporaryObject(c_anchfirstplain, testCase); waitForRendering(made); }
function test_anchfirstloader() { const made = createTemporaryObject(c_anchfirstloader, testCase); waitForRendering(made); }
function test_anchlastplain() { const made = createTemporaryObject(c_anchlastplain, testCase); waitForRendering(made); }
function test_anchlastloader() { const made = createTemporaryObject(c_anchlastloader, testCase); waitForRendering(made); }
function test_implfirstplain() { const made = createTemporaryObject(c_implfirstplain, testCase); waitForRendering(made); }
function test_implfirstloader() { const made = createTemporaryObject(c_implfirstloader, testCase); waitForRendering(made); }
function test_impllastplain() { const made = createTemporaryObject(c_impllastplain, testCase); waitForRendering(made); }
function test_impllastloader() { const made = createTemporaryObject(c_impllastloader, testCase); waitForRendering(made); }
function test_parentdepfirstplain() { const made = createTemporaryObject(c_parentdepfirstplain, testCase); waitForRendering(made); }
function test_parentdepfirstloader() { const made = createTemporaryObject(c_parentdepfirstloader, testCase); waitForRendering(made); }
function test_parentdeplastplain() { const made = createTemporaryObject(c_parentdeplastplain, testCase); waitForRendering(made); }
function test_parentdeplastloader() { const made = createTemporaryObject(c_parentdeplastloader, testCase); waitForRendering(made); }
function test_freedepfirstplain() { const made = createTemporaryObject(c_freedepfirstplain, testCase); waitForRendering(made); }
function test_freedepfirstloader() { const made = createTemporaryObject(c_freedepfirstloader, testCase); waitForRendering(made); }
function test_freedeplastplain() { const made = createTemporaryObject(c_freedeplastplain, testCase); waitForRendering(made); }
function test_freedeplastloader() { const made = createTemporaryObject(c_freedeplastloader, testCase); waitForRendering(made); }
function test_implparfirstplain() { const made = createTemporaryObject(c_implparfirstplain, testCase); waitForRendering(made); }
function test_implparfirstloader() { const made = createTemporaryObject(c_implparfirstloader, testCase); waitForRendering(made); }
function test_implparlastplain() { const made = createTemporaryObject(c_implparlastplain, testCase); waitForRendering(made); }
function test_implparlastloader() { const made = createTemporaryObject(c_implparlastloader, testCase); waitForRendering(made); }
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
