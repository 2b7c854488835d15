<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>BoxesPage</name>
    <message>
        <source>Border widths</source>
        <translation>边框宽度</translation>
    </message>
    <message>
        <source>Corner radii</source>
        <translation>圆角半径</translation>
    </message>
    <message>
        <source>Each corner has its own radius. A pair of radii that doesn&apos;t fit into its side is dropped.</source>
        <translation>每个角都有自己的半径。若一条边容不下两端的半径，则这一对半径不起作用。</translation>
    </message>
    <message>
        <source>two corners</source>
        <translation>两个角</translation>
    </message>
    <message>
        <source>64 px, too large</source>
        <translation>64 px，过大</translation>
    </message>
    <message>
        <source>A colour for each edge</source>
        <translation>每条边各有颜色</translation>
    </message>
    <message>
        <source>Edges meet in a mitre, and on a round corner the colour changes on the diagonal.</source>
        <translation>相邻两边以斜角相接；在圆角处，颜色沿对角线变化。</translation>
    </message>
    <message>
        <source>thin</source>
        <translation>细</translation>
    </message>
    <message>
        <source>mitred</source>
        <translation>斜接</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>one edge only</source>
        <translation>仅一条边</translation>
    </message>
    <message>
        <source>Gradients</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>A gradient is a text like any colour; its stops may name colours of the skin.</source>
        <translation>渐变与颜色一样用文本表示，其色标可以引用皮肤中的颜色。</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>向右</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>向下</translation>
    </message>
    <message>
        <source>diagonal</source>
        <translation>对角</translation>
    </message>
    <message>
        <source>three stops</source>
        <translation>三个色标</translation>
    </message>
    <message>
        <source>in the border</source>
        <translation>用于边框</translation>
    </message>
    <message>
        <source>Border image and colour rectangles</source>
        <translation>边框图像与颜色矩形</translation>
    </message>
    <message>
        <source>A border image is cut into nine and stretched. Colour rectangles stop at the rounded outline.</source>
        <translation>边框图像被切成九块后拉伸。颜色矩形不会超出圆角轮廓。</translation>
    </message>
    <message>
        <source>border image</source>
        <translation>边框图像</translation>
    </message>
    <message>
        <source>colour rectangles</source>
        <translation>颜色矩形</translation>
    </message>
    <message>
        <source>Border styles</source>
        <translation>边框样式</translation>
    </message>
    <message>
        <source>Themed boxes have solid borders. The other styles are there for Custom::cDrawBorder().</source>
        <translation>主题中的方框均为实线边框，其他样式供 Custom::cDrawBorder() 使用。</translation>
    </message>
</context>
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Looks and statuses</source>
        <translation>外观与状态</translation>
    </message>
    <message>
        <source>Each row is a selector of the style document, each column a status of it.</source>
        <translation>每一行对应样式文档中的一个选择器，每一列对应一种状态。</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Press me</source>
        <translation>请按我</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>IconAlignment says at which side of the text the icon is.</source>
        <translation>IconAlignment 决定图标位于文字的哪一侧。</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>without a text</source>
        <translation>无文字</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Image buttons</source>
        <translation>图像按钮</translation>
    </message>
    <message>
        <source>A button with a background image is as large as the image. A base image is scaled to the button.</source>
        <translation>带背景图像的按钮与图像一样大。底图则缩放至按钮大小。</translation>
    </message>
    <message>
        <source>live</source>
        <translation>可操作</translation>
    </message>
    <message>
        <source>On an image</source>
        <translation>图上文字</translation>
    </message>
    <message>
        <source>base background image</source>
        <translation>底图</translation>
    </message>
    <message>
        <source>Click guard</source>
        <translation>防连击</translation>
    </message>
    <message>
        <source>A guarded button takes no second click for 100 ms. Click both as fast as you can.</source>
        <translation>启用防连击的按钮在 100 毫秒内不接受第二次点击。请尽快连续点击这两个按钮。</translation>
    </message>
    <message>
        <source>Guarded</source>
        <translation>防连击</translation>
    </message>
    <message>
        <source>Without a guard</source>
        <translation>无防连击</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>点击次数：%1</translation>
    </message>
</context>
<context>
    <name>ChecksPage</name>
    <message>
        <source>Check boxes</source>
        <translation>复选框</translation>
    </message>
    <message>
        <source>Only the indicator reacts to the mouse, not the text beside it.</source>
        <translation>只有方框响应鼠标，旁边的文字不响应。</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>A switch is a check box with another selector.</source>
        <translation>开关就是使用另一种选择器的复选框。</translation>
    </message>
    <message>
        <source>Radio buttons</source>
        <translation>单选按钮</translation>
    </message>
    <message>
        <source>All of a radio button reacts, its text as well.</source>
        <translation>整个单选按钮都响应鼠标，包括文字。</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>This one</source>
        <translation>选这个</translation>
    </message>
    <message>
        <source>Or that one</source>
        <translation>或选那个</translation>
    </message>
    <message>
        <source>The user&apos;s changes</source>
        <translation>用户的更改</translation>
    </message>
    <message>
        <source>sigStateChanged() tells of clicks alone; a change from code is counted by nobody.</source>
        <translation>sigStateChanged() 只通知用户的点击；由代码作出的更改不计入。</translation>
    </message>
    <message>
        <source>Change from code</source>
        <translation>由代码更改</translation>
    </message>
    <message>
        <source>Three states</source>
        <translation>三种状态</translation>
    </message>
    <message>
        <source>Changes by the user: %1</source>
        <translation>用户更改次数：%1</translation>
    </message>
</context>
<context>
    <name>EnginePage</name>
    <message>
        <source>From a selector</source>
        <translation>取自选择器</translation>
    </message>
    <message>
        <source>From Default</source>
        <translation>取自 Default</translation>
    </message>
    <message>
        <source>Fallback to Normal</source>
        <translation>回退到正常状态</translation>
    </message>
    <message>
        <source>Sub-selector</source>
        <translation>子选择器</translation>
    </message>
    <message>
        <source>Nested class</source>
        <translation>嵌套类</translation>
    </message>
    <message>
        <source>Empty on purpose</source>
        <translation>有意为空</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>类</translation>
    </message>
    <message>
        <source>Parent class</source>
        <translation>外层类</translation>
    </message>
    <message>
        <source>Selector</source>
        <translation>选择器</translation>
    </message>
    <message>
        <source>Sub-selectors</source>
        <translation>子选择器</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>The way to it</source>
        <translation>查找过程</translation>
    </message>
    <message>
        <source>Live control</source>
        <translation>实际控件</translation>
    </message>
    <message>
        <source>The first override of an attribute empties all that the document says of it, in every status, until the document is taken anew.</source>
        <translation>首次覆盖某个属性时，文档为该属性给出的所有状态的值都会被清空，直到重新读取文档为止。</translation>
    </message>
    <message>
        <source>Override of the attribute in the status above</source>
        <translation>覆盖上述状态下的该属性</translation>
    </message>
    <message>
        <source>Box features in use</source>
        <translation>已启用的方框特性</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Take the document anew</source>
        <translation>重新读取文档</translation>
    </message>
    <message>
        <source>New control</source>
        <translation>新建控件</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>(no value)</source>
        <translation>（无值）</translation>
    </message>
    <message>
        <source>emptied by the first override</source>
        <translation>已被首次覆盖清空</translation>
    </message>
    <message>
        <source>own override</source>
        <translation>自身覆盖</translation>
    </message>
    <message>
        <source>document, %1</source>
        <translation>文档，%1</translation>
    </message>
    <message>
        <source>It stands nowhere on the way.</source>
        <translation>查找过程中没有找到。</translation>
    </message>
    <message>
        <source>Found at: %1.</source>
        <translation>找到位置：%1。</translation>
    </message>
    <message>
        <source>%1 has none, so that of Normal counts.</source>
        <translation>“%1”状态没有值，因此采用正常状态的值。</translation>
    </message>
    <message>
        <source>&quot;#Empty#&quot; says that there is no value, and ends the search.</source>
        <translation>“#Empty#”表示没有值，并结束查找。</translation>
    </message>
    <message>
        <source>Names are compared without regard to case. Sub-selectors are separated by commas.</source>
        <translation>名称不区分大小写。多个子选择器之间用英文逗号分隔。</translation>
    </message>
</context>
<context>
    <name>GalleryPage</name>
    <message>
        <source>Hover</source>
        <translation>悬停</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Live, to try</source>
        <translation>可操作</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Control gallery</source>
        <translation>控件展示</translation>
    </message>
    <message>
        <source>Ctrl+T next skin
Ctrl+L next language
Ctrl+E enable or disable</source>
        <translation>Ctrl+T 切换皮肤
Ctrl+L 切换语言
Ctrl+E 启用或禁用</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>皮肤</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Page enabled</source>
        <translation>启用页面</translation>
    </message>
    <message>
        <source>Zanthic gallery</source>
        <translation>Zanthic 控件展示</translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>Boxes and borders</source>
        <translation>方框与边框</translation>
    </message>
    <message>
        <source>What every control is painted from: fills, borders, corners, images.</source>
        <translation>所有控件的绘制基础：填充、边框、圆角与图像。</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Five looks, four statuses, icons at any side, and the click guard.</source>
        <translation>五种外观、四种状态、任意一侧的图标，以及防连击。</translation>
    </message>
    <message>
        <source>Checks and switches</source>
        <translation>复选框与开关</translation>
    </message>
    <message>
        <source>Check boxes, sliding switches and radio buttons.</source>
        <translation>复选框、滑动开关与单选按钮。</translation>
    </message>
    <message>
        <source>Style engine</source>
        <translation>样式引擎</translation>
    </message>
    <message>
        <source>Ask for an attribute and see where its value comes from.</source>
        <translation>查询一个属性，查看其值的来源。</translation>
    </message>
</context>
</TS>
