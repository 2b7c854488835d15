<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Custom</name>
    <message>
        <source>This directory is not supported</source>
        <translation>不支持此目录</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>CustomDockTitleBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>收起</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展开</translation>
    </message>
</context>
<context>
    <name>CustomFolderSelectWidget</name>
    <message>
        <source>Open Directory</source>
        <translation>打开目录</translation>
    </message>
    <message>
        <source>Select File.</source>
        <translation>选择文件。</translation>
    </message>
</context>
<context>
    <name>CustomMainWindow</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CustomMessageBox</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
</TS>
