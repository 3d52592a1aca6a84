<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About %1</source>
        <extracomment>The title of the About window; %1 is the product&apos;s name.</extracomment>
        <translation>%1について</translation>
    </message>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the shortcuts you already know.</source>
        <translation>Mission Controlの中で、ウィンドウを閉じる・最小化する・フルスクリーンにする操作ができます。各ウィンドウのボタンでも、使い慣れたショートカットでも。</translation>
    </message>
</context>
<context>
    <name>AccessStep</name>
    <message>
        <source>One permission, then you&apos;re done</source>
        <translation>許可は1つだけです</translation>
    </message>
    <message>
        <source>Corvane can now see which window you point at.</source>
        <translation>これで、ポインタが指しているウィンドウをCorvaneが判別できます。</translation>
    </message>
    <message>
        <source>macOS asks you first before Corvane can tell which window the pointer is on. Nothing is recorded or sent anywhere.</source>
        <translation>ポインタがどのウィンドウの上にあるかをCorvaneが知る前に、macOSが確認を求めます。何かが記録・送信されることはありません。</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
    </message>
    <message>
        <source>Allowed in System Settings.</source>
        <translation>システム設定で許可されています。</translation>
    </message>
    <message>
        <source>Opens Privacy &amp; Security in System Settings.</source>
        <translation>システム設定の「プライバシーとセキュリティ」を開きます。</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list in System Settings.</source>
        <translation>システム設定のリストでCorvaneをオンにしてください。</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list. Not there? Drag in the tile under System Settings.</source>
        <translation>リストでCorvaneをオンにしてください。見当たらなければ、システム設定の下のタイルをドラッグしてください。</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>もう一度開く</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>システム設定を開く</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Corvane is not running.</source>
        <translation>Corvane は実行されていません。</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
</context>
<context>
    <name>BackButton</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
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
        <translation>ボタン</translation>
    </message>
    <message>
        <source>look, theme, colour, color, size, minimize, full screen, maximize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>外観, テーマ, 色, サイズ, 最小化, フルスクリーン, 全画面, 最大化</translation>
    </message>
</context>
<context>
    <name>ButtonsPane</name>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>最小化ボタン</translation>
    </message>
    <message>
        <source>Next to Close, which is always there.</source>
        <translation>常に表示される「閉じる」の隣です。</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>フルスクリーンボタン</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>フルスクリーン</translation>
    </message>
    <message>
        <source>For the full-screen button and ⌘F.</source>
        <translation>フルスクリーンボタンと⌘Fの動作です。</translation>
    </message>
    <message>
        <source>Own Space</source>
        <translation>専用スペース</translation>
    </message>
    <message>
        <source>Fill Screen</source>
        <translation>画面いっぱい</translation>
    </message>
</context>
<context>
    <name>ButtonsPreview</name>
    <message>
        <source>Preview of the buttons</source>
        <translation>ボタンのプレビュー</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>ブラウザ</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>スタートページ</translation>
    </message>
</context>
<context>
    <name>ConstructionPlan</name>
    <message>
        <source>Pill %1 × %2</source>
        <extracomment>A note on a drawing: a pill-shaped part, %1 units wide and %2 high.</extracomment>
        <translation>ピル %1 × %2</translation>
    </message>
    <message>
        <source>Circle %1</source>
        <extracomment>A note on a drawing: a circle, %1 units across.</extracomment>
        <translation>円 %1</translation>
    </message>
    <message>
        <source>Gap %1</source>
        <extracomment>A note on a drawing: the room between two parts, %1 units wide.</extracomment>
        <translation>間隔 %1</translation>
    </message>
    <message>
        <source>The %1 mark</source>
        <extracomment>The title of a drawing of a product&apos;s mark; %1 is the product&apos;s name.</extracomment>
        <translation>%1のマーク</translation>
    </message>
</context>
<context>
    <name>CustomizeStep</name>
    <message>
        <source>Make it yours</source>
        <translation>お好みに合わせて</translation>
    </message>
    <message>
        <source>Optional. Pick a look and a size; you can change them any time in Settings.</source>
        <translation>省略できます。外観とサイズを選んでください。設定でいつでも変更できます。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>最小化ボタン</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>フルスクリーンボタン</translation>
    </message>
    <message>
        <source>Looks Good</source>
        <translation>これでよい</translation>
    </message>
    <message>
        <source>Keep the Defaults</source>
        <translation>デフォルトのまま</translation>
    </message>
</context>
<context>
    <name>DemoCell</name>
    <message>
        <source>%1 window, %2, full screen</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>%1のウィンドウ、%2、フルスクリーン</translation>
    </message>
    <message>
        <source>%1 window, %2</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>%1のウィンドウ、%2</translation>
    </message>
    <message>
        <source>Use the actions to close, minimize or full-screen it.</source>
        <translation>アクションを使って、閉じる、最小化する、フルスクリーンにする操作ができます。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>フルスクリーン</translation>
    </message>
</context>
<context>
    <name>DemoModel</name>
    <message>
        <source>Browser</source>
        <translation>ブラウザ</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>スタートページ</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>アイデア</translation>
    </message>
    <message>
        <source>Sketches</source>
        <translation>スケッチ</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>今週</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>端末</translation>
    </message>
    <message>
        <source>zsh</source>
        <translation>zsh</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>プレーヤー</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Docs</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Point at a window first.</source>
        <translation>まずウィンドウにポインタを合わせてください。</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>Swipe up with three fingers or press F3 to open Mission Control, then hover any window.</source>
        <translation>3本指で上にスワイプするか、F3を押してMission Controlを開き、ウィンドウにポインタを合わせてください。</translation>
    </message>
    <message>
        <source> Corvane starts at login.</source>
        <translation>Corvaneはログイン時に起動します。</translation>
    </message>
    <message>
        <source>Open Mission Control</source>
        <translation>Mission Controlを開く</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Don&apos;t start at login</source>
        <translation>ログイン時に起動しない</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>今はしない</translation>
    </message>
</context>
<context>
    <name>DragTileContent</name>
    <message>
        <source>Not in the list? Drag me in.</source>
        <translation>リストにありませんか？ここからドラッグしてください。</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list above.</source>
        <translation>上の「アクセシビリティ」のリストにCorvaneをドロップしてください。</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list.</source>
        <translation>「アクセシビリティ」のリストにCorvaneをドロップしてください。</translation>
    </message>
</context>
<context>
    <name>EBAboutScreen</name>
    <message>
        <source>Check for Updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Website ↗︎</source>
        <translation>Webサイト ↗︎</translation>
    </message>
    <message>
        <source>Made by Vexmoor</source>
        <translation>制作: Vexmoor</translation>
    </message>
</context>
<context>
    <name>EBSearchField</name>
    <message>
        <source>Clear search</source>
        <translation>検索を消去</translation>
    </message>
</context>
<context>
    <name>EBSettingsWindowController</name>
    <message>
        <source>%1 Settings</source>
        <extracomment>The title of the settings window; %1 is the product&apos;s name.</extracomment>
        <translation>%1の設定</translation>
    </message>
</context>
<context>
    <name>EBStatus</name>
    <message>
        <source>Allowed</source>
        <translation>許可済み</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
</context>
<context>
    <name>EBStepList</name>
    <message>
        <source>Step %1 of %2, %3, done</source>
        <extracomment>Read aloud; %1 is the step&apos;s number, %2 how many there are, %3 its title.</extracomment>
        <translation>ステップ%1/%2、%3、完了</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3, current</source>
        <translation>ステップ%1/%2、%3、現在</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3</source>
        <translation>ステップ%1/%2、%3</translation>
    </message>
</context>
<context>
    <name>FullScreenBadge</name>
    <message>
        <source>Full screen</source>
        <translation>フルスクリーン</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>login, startup, menu bar, icon, accessibility, permission, guide</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>ログイン, 起動, メニューバー, アイコン, アクセシビリティ, 許可, ガイド</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Start at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Waiting for your OK in System Settings › General › Login Items.</source>
        <translation>「システム設定 › 一般 › ログイン項目」での許可を待っています。</translation>
    </message>
    <message>
        <source>So the buttons are there whenever you open Mission Control.</source>
        <translation>Mission Controlを開くと、いつでもボタンが表示されます。</translation>
    </message>
    <message>
        <source>Login Items</source>
        <translation>ログイン項目</translation>
    </message>
    <message>
        <source>Allow Corvane there to finish.</source>
        <translation>そこでCorvaneを許可すると完了します。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Show in the menu bar</source>
        <translation>メニューバーに表示</translation>
    </message>
    <message>
        <source>Open Corvane from Applications to come back here.</source>
        <translation>ここに戻るには、アプリケーションからCorvaneを開いてください。</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
    </message>
    <message>
        <source>Corvane can see which window you point at.</source>
        <translation>ポインタが指しているウィンドウをCorvaneが判別できます。</translation>
    </message>
    <message>
        <source>Needed to see which window you point at in Mission Control.</source>
        <translation>Mission Controlでポインタが指すウィンドウを判別するために必要です。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Welcome guide</source>
        <translation>ようこそガイド</translation>
    </message>
    <message>
        <source>Try it again in a pretend Mission Control.</source>
        <translation>練習用のMission Controlでもう一度試せます。</translation>
    </message>
    <message>
        <source>Show Guide</source>
        <translation>ガイドを表示</translation>
    </message>
</context>
<context>
    <name>GuideWindowController</name>
    <message>
        <source>Welcome to Corvane</source>
        <translation>Corvaneへようこそ</translation>
    </message>
</context>
<context>
    <name>ImportDrop</name>
    <message>
        <source>The settings were imported.</source>
        <translation>設定を読み込みました。</translation>
    </message>
</context>
<context>
    <name>ImportOffer</name>
    <message>
        <source>Changed: %1</source>
        <extracomment>%1 is the names of saved layouts. They stay, but what they put back is another.</extracomment>
        <translation>変更あり：%1</translation>
    </message>
</context>
<context>
    <name>ImportSheet</name>
    <message>
        <source>Import these settings?</source>
        <translation>設定を読み込みますか？</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>読み込むものはありません</translation>
    </message>
    <message>
        <source>Everything in this file is set already.</source>
        <translation>このファイルの内容はすべて設定済みです。</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <extracomment>%1 is the value that a setting has before an import.</extracomment>
        <translation>現在：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込む</translation>
    </message>
</context>
<context>
    <name>KeySymbols</name>
    <message>
        <source> to </source>
        <translation>から</translation>
    </message>
</context>
<context>
    <name>LayoutNameField</name>
    <message>
        <source>Save name</source>
        <translation>名前を保存</translation>
    </message>
</context>
<context>
    <name>LayoutPreview</name>
    <message numerus="yes">
        <source>%n windows: %1</source>
        <extracomment>%1 stands for the names of the windows&apos; applications.</extracomment>
        <translation>
            <numerusform>%nつのウィンドウ: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LayoutRow</name>
    <message>
        <source>Name of layout %1</source>
        <translation>レイアウト%1の名前</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1を削除</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The place of a layout in the list, and how many there are.</extracomment>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>LayoutsModel</name>
    <message>
        <source>layout %1</source>
        <extracomment>%1 is the place of a layout without a name in the list.</extracomment>
        <translation>レイアウト%1</translation>
    </message>
</context>
<context>
    <name>LayoutsPage</name>
    <message>
        <source>Layouts</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>snap, arrange, tile, window, layout, shelf, gap</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>吸着, 配置, タイル, ウィンドウ, レイアウト, 棚, 間隔</translation>
    </message>
</context>
<context>
    <name>LayoutsPane</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
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
        <translation>左半分または右半分</translation>
    </message>
    <message>
        <source>Again: two thirds, then a third.</source>
        <translation>繰り返すと3分の2、次に3分の1。</translation>
    </message>
    <message>
        <source>Top or bottom half</source>
        <translation>上半分または下半分</translation>
    </message>
    <message>
        <source>On a side: a quarter.</source>
        <translation>左右に寄せたものは4分の1。</translation>
    </message>
    <message>
        <source>Fill the screen</source>
        <translation>画面いっぱいに広げる</translation>
    </message>
    <message>
        <source>Put a saved layout back</source>
        <translation>保存したレイアウトに戻す</translation>
    </message>
    <message>
        <source>Snap and arrange windows</source>
        <translation>ウィンドウの吸着と配置</translation>
    </message>
    <message>
        <source>In Mission Control: snap the window under the pointer, compose layouts and put them back.</source>
        <translation>Mission Controlで、ポインタの下のウィンドウを吸着させたり、レイアウトを組んで元に戻したりできます。</translation>
    </message>
    <message>
        <source>Layouts shelf</source>
        <translation>レイアウトの棚</translation>
    </message>
    <message>
        <source>A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and templates.</source>
        <translation>Mission Controlの下端に「レイアウト」のつまみを表示します。ポインタを合わせると、レイアウトとテンプレートが開きます。</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Space between arranged windows.</source>
        <translation>配置したウィンドウの間隔です。</translation>
    </message>
    <message>
        <source>Open apps that aren&apos;t running</source>
        <translation>起動していないアプリを開く</translation>
    </message>
    <message>
        <source>When a saved layout is put back.</source>
        <translation>保存したレイアウトに戻すときに。</translation>
    </message>
    <message>
        <source>Saved layouts</source>
        <translation>保存したレイアウト</translation>
    </message>
    <message>
        <source>In Mission Control</source>
        <translation>Mission Controlで</translation>
    </message>
    <message>
        <source>Point at a window first. Click a layout on the shelf to put its windows back, ⌥-click to delete it. Click a template, then the windows that go in it, or drag a window onto a slot.</source>
        <translation>まずウィンドウにポインタを合わせます。棚のレイアウトをクリックするとウィンドウが元に戻り、⌥クリックで削除できます。テンプレートをクリックしてから入れるウィンドウをクリックするか、ウィンドウを枠にドラッグします。</translation>
    </message>
</context>
<context>
    <name>MarkConstruction</name>
    <message>
        <source>The %1 mark drawn on its grid</source>
        <extracomment>Read aloud; %1 is a product&apos;s name.</extracomment>
        <translation>グリッドに描かれた%1のマーク</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>Click the cross, or press ⌘W to close it.</source>
        <translation>×印をクリックするか、⌘Wを押して閉じてください。</translation>
    </message>
    <message>
        <source>Click a button, or press ⌘W to close it.</source>
        <translation>ボタンをクリックするか、⌘Wを押して閉じてください。</translation>
    </message>
    <message>
        <source>Now hover another window and press ⌘M to minimize it.</source>
        <translation>次に、別のウィンドウにポインタを合わせ、⌘Mを押して最小化してください。</translation>
    </message>
    <message>
        <source>Press ⌘F on a window to take it full screen.</source>
        <translation>ウィンドウの上で⌘Fを押して、フルスクリーンにしてください。</translation>
    </message>
    <message>
        <source>That&apos;s all there is to it. It works just like this in Mission Control.</source>
        <translation>これだけです。Mission Controlでも同じように使えます。</translation>
    </message>
</context>
<context>
    <name>OnboardingStep</name>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>試す</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Make it yours</source>
        <translation>カスタマイズ</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Step %1 · %2</source>
        <translation>ステップ%1 · %2</translation>
    </message>
</context>
<context>
    <name>PageArea</name>
    <message>
        <source>Settings · %1</source>
        <extracomment>The line above a page&apos;s heading; %1 is the page&apos;s number.</extracomment>
        <translation>設定 · %1</translation>
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
        <translation>Return</translation>
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
        <translation>「%1」を削除しました。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>SavedLayouts</name>
    <message>
        <source>None yet</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>In Mission Control, click Save current, or a template.</source>
        <translation>Mission Controlで「現在の配置を保存」またはテンプレートをクリックします。</translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Look</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Shortcut %1</source>
        <extracomment>%1 is the keys of a shortcut.</extracomment>
        <translation>ショートカット %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>SettingsAppDelegate</name>
    <message>
        <source>Your settings are gone.</source>
        <translation>設定が失われています。</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Start Fresh</source>
        <translation>最初から始める</translation>
    </message>
</context>
<context>
    <name>SettingsTransfer</name>
    <message>
        <source>There is nothing to save settings in.</source>
        <translation>設定の保存先がありません。</translation>
    </message>
    <message>
        <source>%1 Nothing was imported.</source>
        <extracomment>%1 is a sentence that says why.</extracomment>
        <translation>%1何も読み込まれていません。</translation>
    </message>
</context>
<context>
    <name>ShortcutVocabulary</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>アプリのすべてのウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>フルスクリーン</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>アプリを隠す</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>ほかのアプリを隠す</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>アプリを強制終了</translation>
    </message>
    <message>
        <source>%1 closed</source>
        <extracomment>%1 is the title of a window; so it is below where a window is minimized or full screen.</extracomment>
        <translation>%1を閉じました</translation>
    </message>
    <message>
        <source>%1 minimized</source>
        <translation>%1を最小化しました</translation>
    </message>
    <message>
        <source>%1 full screen</source>
        <translation>%1をフルスクリーンにしました</translation>
    </message>
    <message>
        <source>%1 no longer full screen</source>
        <translation>%1のフルスクリーンを解除しました</translation>
    </message>
    <message>
        <source>All windows of %1 closed</source>
        <extracomment>%1 is the name of an application; so it is below.</extracomment>
        <translation>%1のすべてのウィンドウを閉じました</translation>
    </message>
    <message>
        <source>%1 hidden</source>
        <translation>%1を隠しました</translation>
    </message>
    <message>
        <source>All but %1 hidden</source>
        <translation>%1以外を隠しました</translation>
    </message>
    <message>
        <source>%1 quit</source>
        <translation>%1を終了しました</translation>
    </message>
</context>
<context>
    <name>ShortcutsModel</name>
    <message>
        <source>Close window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>アプリのすべてのウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Minimize window</source>
        <translation>ウィンドウを最小化</translation>
    </message>
    <message>
        <source>Full screen / maximize window</source>
        <translation>フルスクリーン / ウィンドウを最大化</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>アプリを隠す</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>ほかのアプリを隠す</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>アプリを強制終了</translation>
    </message>
</context>
<context>
    <name>ShortcutsPage</name>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>keyboard, hotkey, close, hide, quit, minimize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>キーボード, ホットキー, 閉じる, 隠す, 終了, 最小化</translation>
    </message>
</context>
<context>
    <name>ShortcutsPane</name>
    <message>
        <source>They work only while Mission Control is open, on the window under the pointer.</source>
        <translation>Mission Controlが開いている間だけ、ポインタの下のウィンドウに対して働きます。</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>%1
Version %2</source>
        <extracomment>%1 is the product&apos;s name, %2 its version.</extracomment>
        <translation>%1
バージョン%2</translation>
    </message>
</context>
<context>
    <name>StoreTrouble</name>
    <message>
        <source>Changes last only until you close this window: there is nothing to save them in.</source>
        <translation>変更はこのウィンドウを閉じるまでの間だけ有効です。保存先がありません。</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service doesn&apos;t answer.</source>
        <translation>変更を保存できません。設定サービスが応答しません。</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the disk is full or read-only.</source>
        <translation>変更を保存できません。ディスクがいっぱいか、読み取り専用です。</translation>
    </message>
    <message>
        <source>This can&apos;t be changed: your administrator has locked it.</source>
        <translation>これは変更できません。管理者がロックしています。</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service stores them elsewhere.</source>
        <translation>変更を保存できません。設定サービスが別の場所に保存しています。</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Classic</source>
        <translation>定番</translation>
    </message>
    <message>
        <source>The familiar macOS red, yellow and green.</source>
        <translation>おなじみのmacOSの赤、黄、緑。</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>ソフト</translation>
    </message>
    <message>
        <source>The same colors, calmer and less bright.</source>
        <translation>同じ色を、落ち着いた控えめな明るさで。</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>Shades of grey. Tell them apart by shape.</source>
        <translation>グレーの濃淡。形で見分けます。</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>モノ</translation>
    </message>
    <message>
        <source>Pure black and white.</source>
        <translation>純粋な黒と白。</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>Clear outlines, nothing colored.</source>
        <translation>くっきりした輪郭だけで、色はありません。</translation>
    </message>
</context>
<context>
    <name>ThemeTile</name>
    <message>
        <source>%1 look</source>
        <extracomment>%1 is the title of a theme of the buttons.</extracomment>
        <translation>「%1」の外観</translation>
    </message>
</context>
<context>
    <name>TryItStep</name>
    <message>
        <source>Give it a try</source>
        <translation>試してみましょう</translation>
    </message>
    <message>
        <source>Reset windows</source>
        <translation>ウィンドウをリセット</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or use the shortcuts you already know.</source>
        <translation>Mission Controlの中で、ウィンドウを閉じる・最小化する・フルスクリーンにする操作ができます。ポインタを合わせるとボタンが現れます。使い慣れたショートカットも使えます。</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>始める</translation>
    </message>
    <message>
        <source>Skip setup</source>
        <translation>設定をスキップ</translation>
    </message>
</context>
<context>
    <name>WindowChrome</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大/縮小</translation>
    </message>
</context>
</TS>
