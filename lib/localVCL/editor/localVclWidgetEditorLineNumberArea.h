// The strip of line numbers. It is a widget of its own so that it does not scroll sideways; all it
// does stands in the editor.
#pragma once

#include <QWidget>

#include "localVCL/editor/localVclWidgetEditor.h"

class localVclWidgetEditorLineNumberArea : public QWidget {
public:
    explicit localVclWidgetEditorLineNumberArea(localVclWidgetEditor* editor)
        : QWidget(editor), editor_(editor) {}

    QSize sizeHint() const override { return {editor_->lineNumberAreaWidth(), 0}; }

protected:
    void paintEvent(QPaintEvent* event) override { editor_->lineNumberAreaPaint(event); }

private:
    localVclWidgetEditor* editor_;
};
