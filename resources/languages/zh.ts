<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About %1</source>
        <extracomment>The title of the About window; %1 is the product&apos;s name.</extracomment>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the shortcuts you already know.</source>
        <translation>直接在 Mission Control 中关闭窗口、最小化窗口或将其全屏显示：每个窗口都有按钮，快捷键也是您熟悉的那些。</translation>
    </message>
</context>
<context>
    <name>AccessStep</name>
    <message>
        <source>One permission, then you&apos;re done</source>
        <translation>只需一项权限即可完成</translation>
    </message>
    <message>
        <source>Corvane can now see which window you point at.</source>
        <translation>Corvane 现在可以识别您指向的窗口。</translation>
    </message>
    <message>
        <source>macOS asks you first before Corvane can tell which window the pointer is on. Nothing is recorded or sent anywhere.</source>
        <translation>在 Corvane 得知指针位于哪个窗口之前，macOS 会先征求您的同意。不会记录或发送任何内容。</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>辅助功能</translation>
    </message>
    <message>
        <source>Allowed in System Settings.</source>
        <translation>已在系统设置中允许。</translation>
    </message>
    <message>
        <source>Opens Privacy &amp; Security in System Settings.</source>
        <translation>打开系统设置中的“隐私与安全性”。</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list in System Settings.</source>
        <translation>在系统设置的列表中打开 Corvane。</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list. Not there? Drag in the tile under System Settings.</source>
        <translation>在列表中打开 Corvane。没有找到？请将系统设置下方的方块拖入列表。</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>再次打开</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>打开系统设置</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Corvane is not running.</source>
        <translation>Corvane 未在运行。</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>BackButton</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>ButtonSize</name>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
</context>
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>look, theme, colour, color, size, minimize, full screen, maximize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>外观, 主题, 颜色, 大小, 最小化, 全屏, 最大化</translation>
    </message>
</context>
<context>
    <name>ButtonsPane</name>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>最小化按钮</translation>
    </message>
    <message>
        <source>Next to Close, which is always there.</source>
        <translation>位于始终显示的“关闭”旁边。</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>全屏按钮</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>For the full-screen button and ⌘F.</source>
        <translation>用于全屏按钮和 ⌘F。</translation>
    </message>
    <message>
        <source>Own Space</source>
        <translation>独立空间</translation>
    </message>
    <message>
        <source>Fill Screen</source>
        <translation>填满屏幕</translation>
    </message>
</context>
<context>
    <name>ButtonsPreview</name>
    <message>
        <source>Preview of the buttons</source>
        <translation>按钮预览</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>起始页</translation>
    </message>
</context>
<context>
    <name>ConstructionPlan</name>
    <message>
        <source>Pill %1 × %2</source>
        <extracomment>A note on a drawing: a pill-shaped part, %1 units wide and %2 high.</extracomment>
        <translation>胶囊 %1 × %2</translation>
    </message>
    <message>
        <source>Circle %1</source>
        <extracomment>A note on a drawing: a circle, %1 units across.</extracomment>
        <translation>圆 %1</translation>
    </message>
    <message>
        <source>Gap %1</source>
        <extracomment>A note on a drawing: the room between two parts, %1 units wide.</extracomment>
        <translation>间隙 %1</translation>
    </message>
    <message>
        <source>The %1 mark</source>
        <extracomment>The title of a drawing of a product&apos;s mark; %1 is the product&apos;s name.</extracomment>
        <translation>%1 的标志</translation>
    </message>
</context>
<context>
    <name>CustomizeStep</name>
    <message>
        <source>Make it yours</source>
        <translation>随心定制</translation>
    </message>
    <message>
        <source>Optional. Pick a look and a size; you can change them any time in Settings.</source>
        <translation>可选。选择外观和大小；您可以随时在设置中更改。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>最小化按钮</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>全屏按钮</translation>
    </message>
    <message>
        <source>Looks Good</source>
        <translation>看起来不错</translation>
    </message>
    <message>
        <source>Keep the Defaults</source>
        <translation>保留默认设置</translation>
    </message>
</context>
<context>
    <name>DemoCell</name>
    <message>
        <source>%1 window, %2, full screen</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>%1窗口，%2，全屏</translation>
    </message>
    <message>
        <source>%1 window, %2</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>%1窗口，%2</translation>
    </message>
    <message>
        <source>Use the actions to close, minimize or full-screen it.</source>
        <translation>使用操作来关闭、最小化或全屏显示此窗口。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
</context>
<context>
    <name>DemoModel</name>
    <message>
        <source>Browser</source>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>起始页</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>灵感</translation>
    </message>
    <message>
        <source>Sketches</source>
        <translation>草图</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>本周</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>终端</translation>
    </message>
    <message>
        <source>zsh</source>
        <translation>zsh</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>播放器</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>资料库</translation>
    </message>
    <message>
        <source>Docs</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Point at a window first.</source>
        <translation>请先指向一个窗口。</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>Swipe up with three fingers or press F3 to open Mission Control, then hover any window.</source>
        <translation>用三指向上轻扫或按 F3 打开 Mission Control，然后将指针悬停在任意窗口上。</translation>
    </message>
    <message>
        <source> Corvane starts at login.</source>
        <translation>Corvane 会在登录时启动。</translation>
    </message>
    <message>
        <source>Open Mission Control</source>
        <translation>打开 Mission Control</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Don&apos;t start at login</source>
        <translation>登录时不启动</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>以后再说</translation>
    </message>
</context>
<context>
    <name>DragTileContent</name>
    <message>
        <source>Not in the list? Drag me in.</source>
        <translation>列表中没有？请将我拖进去。</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list above.</source>
        <translation>将 Corvane 拖放到上方的“辅助功能”列表中。</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list.</source>
        <translation>将 Corvane 拖放到“辅助功能”列表中。</translation>
    </message>
</context>
<context>
    <name>EBAboutScreen</name>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Website ↗︎</source>
        <translation>网站 ↗︎</translation>
    </message>
    <message>
        <source>Made by Vexmoor</source>
        <translation>由 Vexmoor 制作</translation>
    </message>
</context>
<context>
    <name>EBSearchField</name>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>EBSettingsWindowController</name>
    <message>
        <source>%1 Settings</source>
        <extracomment>The title of the settings window; %1 is the product&apos;s name.</extracomment>
        <translation>%1 设置</translation>
    </message>
</context>
<context>
    <name>EBStatus</name>
    <message>
        <source>Allowed</source>
        <translation>已允许</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
</context>
<context>
    <name>EBStepList</name>
    <message>
        <source>Step %1 of %2, %3, done</source>
        <extracomment>Read aloud; %1 is the step&apos;s number, %2 how many there are, %3 its title.</extracomment>
        <translation>第 %1 步，共 %2 步，%3，已完成</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3, current</source>
        <translation>第 %1 步，共 %2 步，%3，当前</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3</source>
        <translation>第 %1 步，共 %2 步，%3</translation>
    </message>
</context>
<context>
    <name>FullScreenBadge</name>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>login, startup, menu bar, icon, accessibility, permission, guide</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>登录, 启动, 菜单栏, 图标, 辅助功能, 权限, 指南</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Start at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Waiting for your OK in System Settings › General › Login Items.</source>
        <translation>正在等待您在“系统设置 › 通用 › 登录项”中允许。</translation>
    </message>
    <message>
        <source>So the buttons are there whenever you open Mission Control.</source>
        <translation>这样，每次打开 Mission Control 时按钮都在。</translation>
    </message>
    <message>
        <source>Login Items</source>
        <translation>登录项</translation>
    </message>
    <message>
        <source>Allow Corvane there to finish.</source>
        <translation>在那里允许 Corvane 即可完成。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Show in the menu bar</source>
        <translation>在菜单栏中显示</translation>
    </message>
    <message>
        <source>Open Corvane from Applications to come back here.</source>
        <translation>从“应用程序”中打开 Corvane 即可回到这里。</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>辅助功能</translation>
    </message>
    <message>
        <source>Corvane can see which window you point at.</source>
        <translation>Corvane 可以识别您指向的窗口。</translation>
    </message>
    <message>
        <source>Needed to see which window you point at in Mission Control.</source>
        <translation>需要此权限才能识别您在 Mission Control 中指向的窗口。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Welcome guide</source>
        <translation>欢迎指南</translation>
    </message>
    <message>
        <source>Try it again in a pretend Mission Control.</source>
        <translation>在模拟的 Mission Control 中再试一次。</translation>
    </message>
    <message>
        <source>Show Guide</source>
        <translation>显示指南</translation>
    </message>
</context>
<context>
    <name>GuideWindowController</name>
    <message>
        <source>Welcome to Corvane</source>
        <translation>欢迎使用 Corvane</translation>
    </message>
</context>
<context>
    <name>ImportDrop</name>
    <message>
        <source>The settings were imported.</source>
        <translation>已导入设置。</translation>
    </message>
</context>
<context>
    <name>ImportOffer</name>
    <message>
        <source>Changed: %1</source>
        <extracomment>%1 is the names of saved layouts. They stay, but what they put back is another.</extracomment>
        <translation>已更改：%1</translation>
    </message>
</context>
<context>
    <name>ImportSheet</name>
    <message>
        <source>Import these settings?</source>
        <translation>要导入这些设置吗？</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>没有可导入的内容</translation>
    </message>
    <message>
        <source>Everything in this file is set already.</source>
        <translation>此文件中的所有内容均已设置。</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <extracomment>%1 is the value that a setting has before an import.</extracomment>
        <translation>当前：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
</context>
<context>
    <name>KeySymbols</name>
    <message>
        <source> to </source>
        <translation>至</translation>
    </message>
</context>
<context>
    <name>LayoutNameField</name>
    <message>
        <source>Save name</source>
        <translation>保存名称</translation>
    </message>
</context>
<context>
    <name>LayoutPreview</name>
    <message numerus="yes">
        <source>%n windows: %1</source>
        <extracomment>%1 stands for the names of the windows&apos; applications.</extracomment>
        <translation>
            <numerusform>%n 个窗口：%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LayoutRow</name>
    <message>
        <source>Name of layout %1</source>
        <translation>布局 %1 的名称</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除%1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The place of a layout in the list, and how many there are.</extracomment>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
</context>
<context>
    <name>LayoutsModel</name>
    <message>
        <source>layout %1</source>
        <extracomment>%1 is the place of a layout without a name in the list.</extracomment>
        <translation>布局 %1</translation>
    </message>
</context>
<context>
    <name>LayoutsPage</name>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>snap, arrange, tile, window, layout, shelf, gap</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>贴靠, 排列, 平铺, 窗口, 布局, 布局架, 间隙</translation>
    </message>
</context>
<context>
    <name>LayoutsPane</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Left or right half</source>
        <translation>左半边或右半边</translation>
    </message>
    <message>
        <source>Again: two thirds, then a third.</source>
        <translation>再按一次：三分之二，然后三分之一。</translation>
    </message>
    <message>
        <source>Top or bottom half</source>
        <translation>上半边或下半边</translation>
    </message>
    <message>
        <source>On a side: a quarter.</source>
        <translation>已靠边时：四分之一。</translation>
    </message>
    <message>
        <source>Fill the screen</source>
        <translation>填满屏幕</translation>
    </message>
    <message>
        <source>Put a saved layout back</source>
        <translation>恢复已保存的布局</translation>
    </message>
    <message>
        <source>Snap and arrange windows</source>
        <translation>贴靠和排列窗口</translation>
    </message>
    <message>
        <source>In Mission Control: snap the window under the pointer, compose layouts and put them back.</source>
        <translation>在 Mission Control 中：贴靠指针下的窗口，组合布局并恢复布局。</translation>
    </message>
    <message>
        <source>Layouts shelf</source>
        <translation>布局架</translation>
    </message>
    <message>
        <source>A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and templates.</source>
        <translation>Mission Control 底部的“布局”手柄。指向它即可打开您的布局和模板。</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>间隙</translation>
    </message>
    <message>
        <source>Space between arranged windows.</source>
        <translation>排列后的窗口之间的间距。</translation>
    </message>
    <message>
        <source>Open apps that aren&apos;t running</source>
        <translation>打开未运行的应用</translation>
    </message>
    <message>
        <source>When a saved layout is put back.</source>
        <translation>恢复已保存的布局时。</translation>
    </message>
    <message>
        <source>Saved layouts</source>
        <translation>已保存的布局</translation>
    </message>
    <message>
        <source>In Mission Control</source>
        <translation>在 Mission Control 中</translation>
    </message>
    <message>
        <source>Point at a window first. Click a layout on the shelf to put its windows back, ⌥-click to delete it. Click a template, then the windows that go in it, or drag a window onto a slot.</source>
        <translation>请先指向一个窗口。点按布局架上的布局可恢复其窗口，⌥ 点按可将其删除。点按模板，再点按要放入的窗口，或将窗口拖到空位上。</translation>
    </message>
</context>
<context>
    <name>MarkConstruction</name>
    <message>
        <source>The %1 mark drawn on its grid</source>
        <extracomment>Read aloud; %1 is a product&apos;s name.</extracomment>
        <translation>绘制在网格上的 %1 标志</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>Click the cross, or press ⌘W to close it.</source>
        <translation>点按叉号，或按 ⌘W 将其关闭。</translation>
    </message>
    <message>
        <source>Click a button, or press ⌘W to close it.</source>
        <translation>点按按钮，或按 ⌘W 将其关闭。</translation>
    </message>
    <message>
        <source>Now hover another window and press ⌘M to minimize it.</source>
        <translation>现在将指针悬停在另一个窗口上，按 ⌘M 将其最小化。</translation>
    </message>
    <message>
        <source>Press ⌘F on a window to take it full screen.</source>
        <translation>在窗口上按 ⌘F 将其全屏显示。</translation>
    </message>
    <message>
        <source>That&apos;s all there is to it. It works just like this in Mission Control.</source>
        <translation>就这么简单。在 Mission Control 中也是如此。</translation>
    </message>
</context>
<context>
    <name>OnboardingStep</name>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>试一试</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>Make it yours</source>
        <translation>随心定制</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>已就绪</translation>
    </message>
    <message>
        <source>Step %1 · %2</source>
        <translation>第 %1 步 · %2</translation>
    </message>
</context>
<context>
    <name>PageArea</name>
    <message>
        <source>Settings · %1</source>
        <extracomment>The line above a page&apos;s heading; %1 is the page&apos;s number.</extracomment>
        <translation>设置 · %1</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>回车</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
</context>
<context>
    <name>RemovalLine</name>
    <message>
        <source>Deleted “%1”.</source>
        <extracomment>%1 is the name of a layout.</extracomment>
        <translation>已删除“%1”。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
</context>
<context>
    <name>SavedLayouts</name>
    <message>
        <source>None yet</source>
        <translation>暂无</translation>
    </message>
    <message>
        <source>In Mission Control, click Save current, or a template.</source>
        <translation>在 Mission Control 中，点按“保存当前布局”或一个模板。</translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Look</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Shortcut %1</source>
        <extracomment>%1 is the keys of a shortcut.</extracomment>
        <translation>快捷键 %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>SettingsAppDelegate</name>
    <message>
        <source>Your settings are gone.</source>
        <translation>您的设置已丢失。</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Start Fresh</source>
        <translation>重新开始</translation>
    </message>
</context>
<context>
    <name>SettingsTransfer</name>
    <message>
        <source>There is nothing to save settings in.</source>
        <translation>没有可存储设置的位置。</translation>
    </message>
    <message>
        <source>%1 Nothing was imported.</source>
        <extracomment>%1 is a sentence that says why.</extracomment>
        <translation>%1未导入任何内容。</translation>
    </message>
</context>
<context>
    <name>ShortcutVocabulary</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>关闭应用的所有窗口</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>隐藏应用</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>隐藏其他应用</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>强制退出应用</translation>
    </message>
    <message>
        <source>%1 closed</source>
        <extracomment>%1 is the title of a window; so it is below where a window is minimized or full screen.</extracomment>
        <translation>%1已关闭</translation>
    </message>
    <message>
        <source>%1 minimized</source>
        <translation>%1已最小化</translation>
    </message>
    <message>
        <source>%1 full screen</source>
        <translation>%1已全屏显示</translation>
    </message>
    <message>
        <source>%1 no longer full screen</source>
        <translation>%1已退出全屏</translation>
    </message>
    <message>
        <source>All windows of %1 closed</source>
        <extracomment>%1 is the name of an application; so it is below.</extracomment>
        <translation>%1的所有窗口已关闭</translation>
    </message>
    <message>
        <source>%1 hidden</source>
        <translation>%1已隐藏</translation>
    </message>
    <message>
        <source>All but %1 hidden</source>
        <translation>已隐藏除%1以外的所有应用</translation>
    </message>
    <message>
        <source>%1 quit</source>
        <translation>%1已退出</translation>
    </message>
</context>
<context>
    <name>ShortcutsModel</name>
    <message>
        <source>Close window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>关闭应用的所有窗口</translation>
    </message>
    <message>
        <source>Minimize window</source>
        <translation>最小化窗口</translation>
    </message>
    <message>
        <source>Full screen / maximize window</source>
        <translation>全屏显示/最大化窗口</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>隐藏应用</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>隐藏其他应用</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>强制退出应用</translation>
    </message>
</context>
<context>
    <name>ShortcutsPage</name>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>keyboard, hotkey, close, hide, quit, minimize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>键盘, 热键, 关闭, 隐藏, 退出, 最小化</translation>
    </message>
</context>
<context>
    <name>ShortcutsPane</name>
    <message>
        <source>They work only while Mission Control is open, on the window under the pointer.</source>
        <translation>仅在 Mission Control 打开时有效，作用于指针下的窗口。</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>%1
Version %2</source>
        <extracomment>%1 is the product&apos;s name, %2 its version.</extracomment>
        <translation>%1
版本 %2</translation>
    </message>
</context>
<context>
    <name>StoreTrouble</name>
    <message>
        <source>Changes last only until you close this window: there is nothing to save them in.</source>
        <translation>更改仅在关闭此窗口前有效：没有可保存的位置。</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service doesn&apos;t answer.</source>
        <translation>无法保存更改：设置服务没有响应。</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the disk is full or read-only.</source>
        <translation>无法保存更改：磁盘已满或为只读。</translation>
    </message>
    <message>
        <source>This can&apos;t be changed: your administrator has locked it.</source>
        <translation>无法更改此项：管理员已将其锁定。</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service stores them elsewhere.</source>
        <translation>无法保存更改：设置服务将其存储在别处。</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>The familiar macOS red, yellow and green.</source>
        <translation>macOS 中熟悉的红、黄、绿。</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>柔和</translation>
    </message>
    <message>
        <source>The same colors, calmer and less bright.</source>
        <translation>相同的颜色，更沉稳、不那么鲜艳。</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>石墨</translation>
    </message>
    <message>
        <source>Shades of grey. Tell them apart by shape.</source>
        <translation>深浅不同的灰色，以形状区分。</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>Pure black and white.</source>
        <translation>纯黑与纯白。</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>无色</translation>
    </message>
    <message>
        <source>Clear outlines, nothing colored.</source>
        <translation>清晰的轮廓，没有颜色。</translation>
    </message>
</context>
<context>
    <name>ThemeTile</name>
    <message>
        <source>%1 look</source>
        <extracomment>%1 is the title of a theme of the buttons.</extracomment>
        <translation>“%1”外观</translation>
    </message>
</context>
<context>
    <name>TryItStep</name>
    <message>
        <source>Give it a try</source>
        <translation>试一试</translation>
    </message>
    <message>
        <source>Reset windows</source>
        <translation>重置窗口</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or use the shortcuts you already know.</source>
        <translation>直接在 Mission Control 中关闭窗口、最小化窗口或将其全屏显示。将指针悬停在窗口上即可看到按钮，也可以使用您熟悉的快捷键。</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Skip setup</source>
        <translation>跳过设置</translation>
    </message>
</context>
<context>
    <name>WindowChrome</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
</TS>
