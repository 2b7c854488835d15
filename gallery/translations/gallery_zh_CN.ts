<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AnimationPage</name>
    <message>
        <source>Frames</source>
        <translation>帧</translation>
    </message>
    <message>
        <source>A strip of pictures is cut into frames, side by side or one below the other; or there is a list.</source>
        <translation>将一条并排或上下排列的长图切成帧，也可以直接给出图片列表。</translation>
    </message>
    <message>
        <source>a horizontal strip, once</source>
        <translation>横向长图，一次</translation>
    </message>
    <message>
        <source>a vertical strip, once</source>
        <translation>纵向长图，一次</translation>
    </message>
    <message>
        <source>a list, once</source>
        <translation>列表，一次</translation>
    </message>
    <message>
        <source>a horizontal strip, again and again</source>
        <translation>横向长图，循环</translation>
    </message>
    <message>
        <source>a list, again and again</source>
        <translation>列表，循环</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Stopping keeps the place. An animation that isn&apos;t played again and again tells when it has ended.</source>
        <translation>停止时保留当前位置。不循环的动画在结束时发出通知。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Finished: %1</source>
        <translation>已结束：%1</translation>
    </message>
</context>
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
    <name>CombosPage</name>
    <message>
        <source>Amsterdam</source>
        <translation>阿姆斯特丹</translation>
    </message>
    <message>
        <source>Beijing</source>
        <translation>北京</translation>
    </message>
    <message>
        <source>Cairo</source>
        <translation>开罗</translation>
    </message>
    <message>
        <source>Dakar</source>
        <translation>达喀尔</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Manage days</source>
        <translation>管理日期</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>双面打印</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Copies: %1</source>
        <translation>份数：%1</translation>
    </message>
    <message>
        <source>%1, both sides</source>
        <translation>%1，双面</translation>
    </message>
    <message>
        <source>Looks and statuses</source>
        <translation>外观与状态</translation>
    </message>
    <message>
        <source>Each row is a selector of the style document, each column a status of it.</source>
        <translation>每一行对应样式文档中的一个选择器，每一列对应一种状态。</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>The wheel over a combo box changes nothing.</source>
        <translation>在组合框上滚动滚轮不会改变任何内容。</translation>
    </message>
    <message>
        <source>Any city</source>
        <translation>任意城市</translation>
    </message>
    <message>
        <source>City...</source>
        <translation>城市...</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>已选择：%1</translation>
    </message>
    <message>
        <source>editable</source>
        <translation>可编辑</translation>
    </message>
    <message>
        <source>still empty</source>
        <translation>尚为空</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>always the same text</source>
        <translation>固定文本</translation>
    </message>
    <message>
        <source>Several values</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>Each item is a flag; together they are the mask. The last row of the list is a button.</source>
        <translation>每一项是一个标志位，合起来就是掩码。列表的最后一行是按钮。</translation>
    </message>
    <message>
        <source>Mask: %1</source>
        <translation>掩码：%1</translation>
    </message>
    <message>
        <source>Clicks on the button: %1</source>
        <translation>按钮点击次数：%1</translation>
    </message>
    <message>
        <source>None of them</source>
        <translation>全部取消</translation>
    </message>
    <message>
        <source>Any widget in place of the list</source>
        <translation>以任意控件代替列表</translation>
    </message>
    <message>
        <source>The combo box opens a form, and shows what was entered.</source>
        <translation>组合框打开一个表单，并显示所填的内容。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>The three popups as they come up.</source>
        <translation>三种弹出窗口的样子。</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>check boxes and a button</source>
        <translation>复选框与按钮</translation>
    </message>
    <message>
        <source>a form</source>
        <translation>表单</translation>
    </message>
</context>
<context>
    <name>DialogsPage</name>
    <message>
        <source>Message boxes</source>
        <translation>消息框</translation>
    </message>
    <message>
        <source>A large text, a small one below, and an icon.</source>
        <translation>大字标题、下方的小字说明和一个图标。</translation>
    </message>
    <message>
        <source>Nothing special</source>
        <translation>没有特别之处</translation>
    </message>
    <message>
        <source>The copy is ready</source>
        <translation>副本已就绪</translation>
    </message>
    <message>
        <source>The disk is nearly full</source>
        <translation>磁盘空间快满了</translation>
    </message>
    <message>
        <source>The file can&apos;t be read</source>
        <translation>无法读取文件</translation>
    </message>
    <message>
        <source>Save the changes?</source>
        <translation>保存更改？</translation>
    </message>
    <message>
        <source>All files are saved</source>
        <translation>所有文件都已保存</translation>
    </message>
    <message>
        <source>A few more words</source>
        <translation>再多几句说明</translation>
    </message>
    <message>
        <source>Notices and questions</source>
        <translation>通知与询问</translation>
    </message>
    <message>
        <source>The calls return when the box is closed.</source>
        <translation>消息框关闭后调用才返回。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Only a large text</source>
        <translation>只有大字标题</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>简单</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>OK or Cancel</source>
        <translation>确定或取消</translation>
    </message>
    <message>
        <source>Go on?</source>
        <translation>继续吗？</translation>
    </message>
    <message>
        <source>Yes or No</source>
        <translation>是或否</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Texts are shown as they stand; only links are made, if wanted.</source>
        <translation>文本原样显示；只有需要时才把链接变为可点击。</translation>
    </message>
    <message>
        <source>A long text</source>
        <translation>长文本</translation>
    </message>
    <message>
        <source>And so on. </source>
        <translation>如此等等。</translation>
    </message>
    <message>
        <source>This text is longer than the line that it stands in. </source>
        <translation>这段文字比它所在的一行要长。</translation>
    </message>
    <message>
        <source>The large size</source>
        <translation>大尺寸</translation>
    </message>
    <message>
        <source>Markup and percent signs</source>
        <translation>标记与百分号</translation>
    </message>
    <message>
        <source>A link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Read on at</source>
        <translation>详情请见</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>文件对话框</translation>
    </message>
    <message>
        <source>A folder that can&apos;t be written is refused with a warning.</source>
        <translation>选择不可写的文件夹时会出现警告。</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Texts (*.txt)</source>
        <translation>文本 (*.txt)</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>还没有回答</translation>
    </message>
    <message>
        <source>Answer: %1</source>
        <translation>回答：%1</translation>
    </message>
</context>
<context>
    <name>DocksPage</name>
    <message>
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Docks and a tool bar in a window</source>
        <translation>窗口中的停靠窗与工具栏</translation>
    </message>
    <message>
        <source>Drag a dock by its title, also out of the window. Collapsing it is up to the program, which is told.</source>
        <translation>拖动标题可移动停靠窗，也可拖出窗口。收起由程序处理，程序会收到通知。</translation>
    </message>
    <message>
        <source>Streets</source>
        <translation>街道</translation>
    </message>
    <message>
        <source>Rivers</source>
        <translation>河流</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>附加项</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>Docks</source>
        <translation>停靠窗</translation>
    </message>
    <message>
        <source>at the left</source>
        <translation>在左侧</translation>
    </message>
    <message>
        <source>at the right</source>
        <translation>在右侧</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>The end of the row</source>
        <translation>行末</translation>
    </message>
    <message>
        <source>What the window is about</source>
        <translation>窗口的主要内容</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>独立显示</translation>
    </message>
    <message>
        <source>A dock that isn&apos;t docked is a window without a frame.</source>
        <translation>未停靠的停靠窗是无边框窗口。</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>收起</translation>
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
    <name>FieldsPage</name>
    <message>
        <source>Looks</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Point at a field or go into it to see its other statuses.</source>
        <translation>将指针移到输入框上或进入其中，可查看其他状态。</translation>
    </message>
    <message>
        <source>With a text</source>
        <translation>有文本</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>With a button</source>
        <translation>带按钮</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>A text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>占位文本</translation>
    </message>
    <message>
        <source>Clicks and keys</source>
        <translation>点击与按键</translation>
    </message>
    <message>
        <source>The first click into a field selects all of its text, if wanted.</source>
        <translation>需要时，第一次点击输入框会选中全部文本。</translation>
    </message>
    <message>
        <source>Click me</source>
        <translation>点击我</translation>
    </message>
    <message>
        <source>Only to be read</source>
        <translation>只能读取</translation>
    </message>
    <message>
        <source>Cats</source>
        <translation>猫</translation>
    </message>
    <message>
        <source>selects all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>selects nothing</source>
        <translation>不选择</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>searches</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Choosing</source>
        <translation>选取</translation>
    </message>
    <message>
        <source>The button at the end asks for the value.</source>
        <translation>末端的按钮用于询问值。</translation>
    </message>
    <message>
        <source>No picture yet</source>
        <translation>还没有图片</translation>
    </message>
    <message>
        <source>A date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>what the program says</source>
        <translation>由程序给出</translation>
    </message>
    <message>
        <source>Texts of several lines</source>
        <translation>多行文本</translation>
    </message>
    <message>
        <source>Write here what takes more than one line. The scroll bar at the side is the theme&apos;s, and it comes when the text is longer than the field.
The colours follow the skin.</source>
        <translation>在这里写下需要多行的内容。一侧的滚动条来自主题，当文本超出输入框时出现。文字可以一直写下去，换行之后接着写，直到写完为止。
颜色随皮肤变化。</translation>
    </message>
    <message>
        <source>Nothing was searched for</source>
        <translation>还没有搜索</translation>
    </message>
    <message>
        <source>Searched for: %1</source>
        <translation>已搜索：%1</translation>
    </message>
</context>
<context>
    <name>GalleryMenus</name>
    <message>
        <source>New window</source>
        <translation>新建窗口</translation>
    </message>
    <message>
        <source>Save a picture</source>
        <translation>保存图片</translation>
    </message>
    <message>
        <source>Next skin</source>
        <translation>下一个皮肤</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Save a picture...</source>
        <translation>保存图片...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页面</translation>
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
        <source>Next language</source>
        <translation>下一种语言</translation>
    </message>
    <message>
        <source>Enable or disable the page</source>
        <translation>启用或禁用页面</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>About Zanthic</source>
        <translation>关于 Zanthic</translation>
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
    <message>
        <source>Save a picture of the page</source>
        <translation>保存页面图片</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>图片 (*.png)</translation>
    </message>
    <message>
        <source>Zanthic: themed desktop widgets for Qt 5</source>
        <translation>Zanthic：Qt 5 的主题化桌面控件</translation>
    </message>
    <message>
        <source>Saving failed</source>
        <translation>保存失败</translation>
    </message>
</context>
<context>
    <name>LabelsPage</name>
    <message>
        <source>Looks</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>A label has a look of its own while the pointer is over it.</source>
        <translation>指针停留时，标签有自己的外观。</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>普通文本</translation>
    </message>
    <message>
        <source>Quiet text</source>
        <translation>次要文本</translation>
    </message>
    <message>
        <source>Strong text</source>
        <translation>强调文本</translation>
    </message>
    <message>
        <source>With a border</source>
        <translation>带边框</translation>
    </message>
    <message>
        <source>Point at me</source>
        <translation>指向我</translation>
    </message>
    <message>
        <source>values of its own</source>
        <translation>自己的取值</translation>
    </message>
    <message>
        <source>two looks</source>
        <translation>两种外观</translation>
    </message>
    <message>
        <source>Elided texts and clicks</source>
        <translation>省略与点击</translation>
    </message>
    <message>
        <source>A text that is too long ends in dots. A label tells of clicks, as a button does.</source>
        <translation>过长的文本以省略号结尾。标签与按钮一样会报告点击。</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>线条</translation>
    </message>
    <message>
        <source>A line is as thick as its widget, solid or dotted.</source>
        <translation>线条与其控件一样粗，可为实线或虚线。</translation>
    </message>
    <message>
        <source>Group boxes</source>
        <translation>分组框</translation>
    </message>
    <message>
        <source>A box that can be switched off takes its content along, and tells its number.</source>
        <translation>可关闭的分组框会连同其内容一起禁用，并报告自己的编号。</translation>
    </message>
    <message>
        <source>To be switched</source>
        <translation>可以开关</translation>
    </message>
    <message>
        <source>Always on</source>
        <translation>始终开启</translation>
    </message>
    <message>
        <source>First option</source>
        <translation>第一项</translation>
    </message>
    <message>
        <source>Second option</source>
        <translation>第二项</translation>
    </message>
    <message>
        <source>The quick brown fox jumps over the lazy dog and goes on its way</source>
        <translation>敏捷的棕色狐狸跳过了那只懒狗，然后继续沿着小路向前走去</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>点击：%1</translation>
    </message>
    <message>
        <source>Box %1 was switched on</source>
        <translation>分组框 %1 已打开</translation>
    </message>
    <message>
        <source>Box %1 was switched off</source>
        <translation>分组框 %1 已关闭</translation>
    </message>
</context>
<context>
    <name>MenusPage</name>
    <message>
        <source>A menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Icons, shortcuts, lines, checked and disabled items; the mark and the arrow stand at the end.</source>
        <translation>图标、快捷键、分隔线、选中项与禁用项；标记和箭头位于末端。</translation>
    </message>
    <message>
        <source>Any widget</source>
        <translation>任意控件</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>a menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>its submenu</source>
        <translation>其子菜单</translation>
    </message>
    <message>
        <source>a widget in a menu</source>
        <translation>菜单中的控件</translation>
    </message>
    <message>
        <source>Live, to try</source>
        <translation>实际试用</translation>
    </message>
    <message>
        <source>By a button, or by a right click into the field.</source>
        <translation>通过按钮，或在方框内单击右键。</translation>
    </message>
    <message>
        <source>Open a menu</source>
        <translation>打开菜单</translation>
    </message>
    <message>
        <source>Right click here</source>
        <translation>在此单击右键</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>显示隐藏文件</translation>
    </message>
    <message>
        <source>Show previews</source>
        <translation>显示预览</translation>
    </message>
    <message>
        <source>Checked for good</source>
        <translation>始终选中</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>排序方式</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Something else...</source>
        <translation>其他...</translation>
    </message>
    <message>
        <source>A widget</source>
        <translation>一个控件</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>现在不行</translation>
    </message>
    <message>
        <source>Nothing was chosen</source>
        <translation>还没有选择</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>已选择：%1</translation>
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
    <message>
        <source>Labels and lines</source>
        <translation>标签与线条</translation>
    </message>
    <message>
        <source>Texts with a look of their own, separators and group boxes.</source>
        <translation>自带外观的文本、分隔线与分组框。</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>输入框</translation>
    </message>
    <message>
        <source>Line edits in three looks, fields that ask for a value, and texts of several lines.</source>
        <translation>三种外观的单行输入框、询问取值的输入框以及多行文本。</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Everything that can stand in a menu, and what pops it up.</source>
        <translation>菜单中可以出现的一切，以及弹出菜单的方式。</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Frameless windows with title bar, buttons and edges to stretch.</source>
        <translation>无边框窗口，带标题栏、按钮和可拉伸的边缘。</translation>
    </message>
    <message>
        <source>Dialogs</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Message boxes for every occasion, and file dialogs.</source>
        <translation>适合各种场合的消息框，以及文件对话框。</translation>
    </message>
    <message>
        <source>Tool tips</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source>Tips with a marker, in one line or several.</source>
        <translation>带标记的提示，单行或多行。</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>组合框</translation>
    </message>
    <message>
        <source>One value or several from a list, and any widget in its place.</source>
        <translation>从列表中选择一个或多个值，也可以用任意控件代替列表。</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>数字框</translation>
    </message>
    <message>
        <source>Whole numbers up to 64 bits, with a slider or without.</source>
        <translation>最多 64 位的整数，可带滑块。</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>Values, levels and ranges, with labels, tips and stages.</source>
        <translation>数值、级别与范围，带标签、提示和分段刻度。</translation>
    </message>
    <message>
        <source>Switches and dots</source>
        <translation>分段按钮与圆点</translation>
    </message>
    <message>
        <source>One of a few choices that are all in view, and rows of dots for steps.</source>
        <translation>从全部可见的几个选项中选择一个，以及表示步骤的圆点行。</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>Frames from a strip or a list of pictures, played once or for good.</source>
        <translation>来自长图或图片列表的帧，播放一次或循环播放。</translation>
    </message>
    <message>
        <source>Docks and tool bars</source>
        <translation>停靠窗与工具栏</translation>
    </message>
    <message>
        <source>Panels at the sides of a window or beside it, and a row of tools.</source>
        <translation>位于窗口两侧或独立的面板，以及一行工具。</translation>
    </message>
</context>
<context>
    <name>SlidersPage</name>
    <message>
        <source>Kinds and looks</source>
        <translation>种类与外观</translation>
    </message>
    <message>
        <source>Each row is a kind, each column a selector of the style document; the last one is disabled.</source>
        <translation>每一行是一个种类，每一列是样式文档中的一个选择器；最后一列为禁用。</translation>
    </message>
    <message>
        <source>One handle</source>
        <translation>单手柄</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Two handles</source>
        <translation>双手柄</translation>
    </message>
    <message>
        <source>With a marker</source>
        <translation>带标记</translation>
    </message>
    <message>
        <source>Labels, tips and direction</source>
        <translation>标签、提示与方向</translation>
    </message>
    <message>
        <source>labels beside</source>
        <translation>标签在两侧</translation>
    </message>
    <message>
        <source>labels below</source>
        <translation>标签在下方</translation>
    </message>
    <message>
        <source>a tip</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>the other way round</source>
        <translation>反向</translation>
    </message>
    <message>
        <source>a marker</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>without its marker</source>
        <translation>无标记</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>A large range is staged: a third of the track each up to 5000, to 50000, and to the end.</source>
        <translation>大范围会分段：到 5000、到 50000 和到末端各占三分之一。</translation>
    </message>
    <message>
        <source>Values: %1, releases: %2</source>
        <translation>数值：%1，松开：%2</translation>
    </message>
    <message>
        <source>0 to 60000: %1</source>
        <translation>0 到 60000：%1</translation>
    </message>
    <message>
        <source>in steps of 10: %1</source>
        <translation>步长为 10：%1</translation>
    </message>
    <message>
        <source>A range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>The buttons move the handle that was touched last. The handles may cross.</source>
        <translation>按钮移动最后触碰的手柄。两个手柄可以交叉。</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>从 %1 到 %2</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>减小</translation>
    </message>
    <message>
        <source>More</source>
        <translation>增大</translation>
    </message>
    <message>
        <source>Under a style sheet</source>
        <translation>样式表滑块</translation>
    </message>
    <message>
        <source>CustomSlider is Qt&apos;s own slider: it takes keys and the wheel, and it may stand upright.</source>
        <translation>CustomSlider 就是 Qt 自带的滑块：它响应按键和滚轮，也可以竖放。</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>安静</translation>
    </message>
    <message>
        <source>Loud</source>
        <translation>响亮</translation>
    </message>
    <message>
        <source>Dry</source>
        <translation>干燥</translation>
    </message>
    <message>
        <source>Moist</source>
        <translation>湿润</translation>
    </message>
    <message>
        <source>Wet</source>
        <translation>潮湿</translation>
    </message>
    <message>
        <source>Labels stand beside the groove or below it; a tip above the handle shows its value.</source>
        <translation>标签位于滑槽两侧或下方；手柄上方的提示显示其数值。</translation>
    </message>
</context>
<context>
    <name>SpinBoxesPage</name>
    <message>
        <source>Looks</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Point at a field or go into it to see its other statuses.</source>
        <translation>将指针移到输入框上或进入其中，可查看其他状态。</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>The wheel changes no value, it scrolls the page. A box for doubles shows whole numbers.</source>
        <translation>滚轮不改变数值，而是滚动页面。双精度数字框显示整数。</translation>
    </message>
    <message>
        <source>in steps of 0.5, is %1</source>
        <translation>步长 0.5，实为 %1</translation>
    </message>
    <message>
        <source>from -50 to 50</source>
        <translation>从 -50 到 50</translation>
    </message>
    <message>
        <source>near the top of 64 bits</source>
        <translation>接近 64 位上限</translation>
    </message>
    <message>
        <source>at their bottom</source>
        <translation>位于其下限</translation>
    </message>
    <message>
        <source>What they tell</source>
        <translation>发出的信号</translation>
    </message>
    <message>
        <source>The focus comes and goes; the mouse is let go; the value changes. Keys don&apos;t bring SigSaveParam().</source>
        <translation>获得焦点、失去焦点、松开鼠标、数值改变。按键不会触发 SigSaveParam()。</translation>
    </message>
    <message>
        <source>%1: %2; changes %3, releases %4</source>
        <translation>%1：%2；更改 %3，松开 %4</translation>
    </message>
    <message>
        <source>With a slider</source>
        <translation>带滑块</translation>
    </message>
    <message>
        <source>The slider stands beside the field, or below it while the field has the focus.</source>
        <translation>滑块位于输入框旁边，或在输入框获得焦点时出现在其下方。</translation>
    </message>
    <message>
        <source>Beside</source>
        <translation>旁边</translation>
    </message>
    <message>
        <source>Zero marked</source>
        <translation>标出零点</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>弹出</translation>
    </message>
    <message>
        <source>the popup while it is open</source>
        <translation>打开时的弹出窗口</translation>
    </message>
</context>
<context>
    <name>SwitchesPage</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>之后</translation>
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
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>季</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Inner corners are square, so that a row reads as one piece.</source>
        <translation>内侧的角为直角，使整行看起来是一体的。</translation>
    </message>
    <message>
        <source>Live, to try</source>
        <translation>可操作</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>A click is told also where the button was checked already. The names can change.</source>
        <translation>点击已选中的按钮也会发出通知。名称可以更改。</translation>
    </message>
    <message>
        <source>Checked: %1, clicks: %2</source>
        <translation>选中：%1，点击：%2</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>当前：%1</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>圆点</translation>
    </message>
    <message>
        <source>Click a dot. The line is as long as the room that there is.</source>
        <translation>请点击圆点。连线会占满可用空间。</translation>
    </message>
    <message>
        <source>Dots of another look</source>
        <translation>其他外观的圆点</translation>
    </message>
    <message>
        <source>Colours, radii and the line can be set.</source>
        <translation>颜色、半径和连线均可设置。</translation>
    </message>
</context>
<context>
    <name>ToolTipsPage</name>
    <message>
        <source>A short tip</source>
        <translation>简短的提示</translation>
    </message>
    <message>
        <source>one line</source>
        <translation>一行</translation>
    </message>
    <message>
        <source>several lines</source>
        <translation>多行</translation>
    </message>
    <message>
        <source>further apart</source>
        <translation>行距更大</translation>
    </message>
    <message>
        <source>The marker is at the left</source>
        <translation>标记位于左侧</translation>
    </message>
    <message>
        <source>marker at 10 %</source>
        <translation>标记在 10 %</translation>
    </message>
    <message>
        <source>The marker is in the middle</source>
        <translation>标记位于中间</translation>
    </message>
    <message>
        <source>marker at 50 %</source>
        <translation>标记在 50 %</translation>
    </message>
    <message>
        <source>Gone in a second</source>
        <translation>一秒后消失</translation>
    </message>
    <message>
        <source>one second</source>
        <translation>一秒</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>How far the lines of a tip are apart is up to the program.</source>
        <translation>提示的行距由程序决定。</translation>
    </message>
    <message>
        <source>Live, to try</source>
        <translation>实际试用</translation>
    </message>
    <message>
        <source>The tip belongs to the button, and goes when the pointer leaves it.</source>
        <translation>提示属于按钮，指针离开后消失。</translation>
    </message>
    <message>
        <source>Several lines
stand below
each other</source>
        <translation>多行文字
依次
排列在下方</translation>
    </message>
</context>
<context>
    <name>WindowsPage</name>
    <message>
        <source>A window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Title bar, content and buttons all come from the theme.</source>
        <translation>标题栏、内容和按钮都来自主题。</translation>
    </message>
    <message>
        <source>A dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Three choices</source>
        <translation>三个选择</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>With tools</source>
        <translation>带工具</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>An item</source>
        <translation>一项</translation>
    </message>
    <message>
        <source>Bars and contents</source>
        <translation>按钮栏与内容</translation>
    </message>
    <message>
        <source>Each button opens a window.</source>
        <translation>每个按钮都会打开一个窗口。</translation>
    </message>
    <message>
        <source>Buttons at the left</source>
        <translation>按钮居左</translation>
    </message>
    <message>
        <source>in the middle</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>at the right</source>
        <translation>居右</translation>
    </message>
    <message>
        <source>Buttons of its own</source>
        <translation>自定义按钮</translation>
    </message>
    <message>
        <source>Scrolled content</source>
        <translation>滚动内容</translation>
    </message>
    <message>
        <source>Scrolled</source>
        <translation>滚动</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>Among other windows</source>
        <translation>与其他窗口的关系</translation>
    </message>
    <message>
        <source>A popup closes with a click outside. A bottom window goes behind a top one that it covers.</source>
        <translation>在弹出窗口之外点击会将其关闭。底层窗口遮住顶层窗口时会退到其后。</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>弹出窗口</translation>
    </message>
    <message>
        <source>Click outside</source>
        <translation>请在外面点击</translation>
    </message>
    <message>
        <source>Menus, tools, stay on top</source>
        <translation>菜单、工具、置顶</translation>
    </message>
    <message>
        <source>The pin keeps it on top</source>
        <translation>图钉使其保持置顶</translation>
    </message>
    <message>
        <source>Another</source>
        <translation>另一项</translation>
    </message>
    <message>
        <source>Move the two onto each other</source>
        <translation>把两个窗口移到一起</translation>
    </message>
    <message>
        <source>A top and a bottom window</source>
        <translation>顶层与底层窗口</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶层</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底层</translation>
    </message>
    <message>
        <source>Maximised</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>A double click on the title restores it</source>
        <translation>双击标题即可还原</translation>
    </message>
    <message>
        <source>Stretching</source>
        <translation>拉伸</translation>
    </message>
    <message>
        <source>The edges and corners at which the window is stretched.</source>
        <translation>可以拉伸窗口的边与角。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Stretch me</source>
        <translation>拉伸我</translation>
    </message>
    <message>
        <source>No button was clicked yet</source>
        <translation>还没有点击按钮</translation>
    </message>
    <message>
        <source>Button %1 was clicked</source>
        <translation>已点击按钮 %1</translation>
    </message>
</context>
</TS>
